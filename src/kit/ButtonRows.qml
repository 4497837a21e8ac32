import QtQuick
import Tidewell

/// Rows with a button in each. Up and Down go from button to button, and when the row that the
/// keyboard is at goes away, it stays near its place.
Column {
    id: root

    property alias model: rows.model
    property alias delegate: rows.delegate

    /// The last row has gone, and the keyboard was in it: the reason to take it elsewhere.
    signal deserted(int reason)

    Accessible.role: Accessible.List

    Keys.onUpPressed: step(false)
    Keys.onDownPressed: step(true)

    function step(isForward: bool) {
        const next = Window.activeFocusItem.nextItemInFocusChain(isForward)
        if (isIn(next, root))
            next.forceActiveFocus(isForward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    function isIn(item: Item, place: Item): bool {
        for (let outer = item; outer; outer = outer.parent)
            if (outer === place)
                return true
        return false
    }

    Repeater {
        id: rows
        onItemRemoved: (index, item) => {
            if (!root.isIn(root.Window.activeFocusItem, item))
                return
            const reason = (root.Window.activeFocusItem as Pressable)?.focusReason ?? Qt.OtherFocusReason
            const neighbour = itemAt(index) ?? itemAt(index - 1)
            if (neighbour)
                neighbour.nextItemInFocusChain().forceActiveFocus(reason)
            else
                root.deserted(reason)
        }
    }
}
