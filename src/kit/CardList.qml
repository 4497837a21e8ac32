import QtQuick
import QtQuick.Templates as T
import Tidewell

/// A list of any length whose cards hold buttons. The keyboard goes through the buttons, with Up and
/// Down too, and the list follows it; when the card that it is at goes away, it stays near its place.
ListView {
    id: root

    readonly property real cardWidth: width - leftMargin - rightMargin

    /// What lies over the lower end, so that the last card can be scrolled out from below it.
    property real roomBelow: 0

    /// The last card has gone, and the keyboard was in it: the reason to take it elsewhere.
    signal deserted(int reason)

    topMargin: 6
    bottomMargin: 20 + roomBelow
    leftMargin: 6
    rightMargin: 12
    spacing: Theme.gap
    clip: true
    cacheBuffer: 400
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: false
    keyNavigationEnabled: false
    currentIndex: -1  // or the current card takes the keyboard itself
    Accessible.role: Accessible.List

    Keys.onUpPressed: step(false)
    Keys.onDownPressed: step(true)

    function step(isForward: bool) {
        const next = Window.activeFocusItem.nextItemInFocusChain(isForward)
        if (keeper.isInside(next))
            next.forceActiveFocus(isForward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    T.ScrollBar.vertical: ScrollHandle {}

    SoftEnds { area: root }

    RowKeeper {
        id: keeper
        rows: root
        onDeserted: reason => root.deserted(reason)
    }
}
