import QtQuick
import QtQuick.Templates as T
import Tidewell

/// A list of any length whose cards hold buttons. The keyboard goes through the buttons, with Up and
/// Down too, and the list follows it; when the card that it is at goes away, it stays near its place.
ListView {
    id: root

    readonly property real cardWidth: width - leftMargin - rightMargin

    // Where the keyboard is, or was before that went away.
    property int lastRow: 0
    property int lastReason: Qt.OtherFocusReason

    /// The last card has gone, and the keyboard was in it: the reason to take it elsewhere.
    signal deserted(int reason)

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
    currentIndex: -1  // or the current card takes the keyboard itself
    Accessible.role: Accessible.List

    Window.onActiveFocusItemChanged: {
        const item = Window.activeFocusItem
        if (item === root)
            Qt.callLater(takeUp)
        else if (item && follower.isInside(item))
            remember(item)
    }
    Keys.onUpPressed: step(false)
    Keys.onDownPressed: step(true)

    function step(isForward: bool) {
        const next = Window.activeFocusItem.nextItemInFocusChain(isForward)
        if (follower.isInside(next))
            next.forceActiveFocus(isForward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    function remember(item: Item) {
        const middle = item.mapToItem(contentItem, item.width / 2, item.height / 2)
        lastRow = indexAt(middle.x, middle.y)
        lastReason = (item as Pressable)?.focusReason ?? Qt.OtherFocusReason
    }

    /// The list itself has the keyboard only if what it was at has gone.
    function takeUp() {
        if (Window.activeFocusItem !== root)
            return
        forceLayout()
        const card = itemAtIndex(Math.min(lastRow, count - 1))
        if (card)
            card.nextItemInFocusChain().forceActiveFocus(lastReason)
        else
            deserted(lastReason)
    }

    T.ScrollBar.vertical: ScrollHandle {}

    FocusFollower {
        id: follower
        area: root
    }
}
