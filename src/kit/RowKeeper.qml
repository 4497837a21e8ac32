import QtQuick
import Tidewell

/// Keeps the keyboard near its place in a list or a grid: when the card that it is at goes away, it
/// goes on to the next one.
FocusFollower {
    id: root

    required property ItemView rows

    // Where the keyboard is, or was before that went away.
    property int lastRow: 0
    property int lastReason: Qt.OtherFocusReason

    /// The last card has gone, and the keyboard was in it: the reason to take it elsewhere.
    signal deserted(int reason)

    area: rows

    Window.onActiveFocusItemChanged: {
        const item = Window.activeFocusItem
        if (item === rows)
            Qt.callLater(takeUp)
        else if (item && isInside(item))
            remember(item)
    }

    function remember(item: Item) {
        const middle = item.mapToItem(rows.contentItem, item.width / 2, item.height / 2)
        lastRow = rows.indexAt(middle.x, middle.y)
        lastReason = (item as Pressable)?.focusReason ?? Qt.OtherFocusReason
    }

    /// The list itself has the keyboard only if what it was at has gone.
    function takeUp() {
        if (Window.activeFocusItem !== rows)
            return
        rows.forceLayout()
        const card = rows.itemAtIndex(Math.min(lastRow, rows.count - 1))
        if (card)
            card.nextItemInFocusChain().forceActiveFocus(lastReason)
        else
            deserted(lastReason)
    }
}
