import QtQuick
import QtQuick.Templates as T
import Tidewell

/// A list of any length whose cards hold buttons. The keyboard goes through the buttons, with Up and
/// Down too, and the list follows it.
ListView {
    id: root

    topMargin: 6
    bottomMargin: 20
    leftMargin: 6
    rightMargin: 12
    spacing: 10
    clip: true
    cacheBuffer: 400
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: false
    keyNavigationEnabled: false
    Accessible.role: Accessible.List

    readonly property real cardWidth: width - leftMargin - rightMargin

    Keys.onUpPressed: step(false)
    Keys.onDownPressed: step(true)

    function step(isForward: bool) {
        const next = Window.activeFocusItem.nextItemInFocusChain(isForward)
        if (follower.isInside(next))
            next.forceActiveFocus(isForward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    T.ScrollBar.vertical: ScrollHandle {}

    FocusFollower {
        id: follower
        area: root
    }
}
