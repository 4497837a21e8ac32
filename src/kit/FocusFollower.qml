import QtQuick
import Tidewell

/// Brings the control that the keyboard comes to into the sight of the area that it lies in.
Item {
    id: root

    required property Flickable area

    readonly property real room: 20

    Window.onActiveFocusItemChanged: {
        const control = Window.activeFocusItem as Pressable
        if (control && control.visualFocus && isInside(control))
            reveal(control)
    }

    function isInside(control: Item): bool {
        for (let place = control.parent; place; place = place.parent)
            if (place === area.contentItem)
                return true
        return false
    }

    function reveal(control: Item) {
        const top = control.mapToItem(area.contentItem, 0, 0).y - room
        const bottom = top + control.height + 2 * room
        const first = area.originY - area.topMargin
        const last = Math.max(first, area.originY + area.contentHeight + area.bottomMargin - area.height)
        const wanted = top < area.contentY ? top : Math.max(area.contentY, bottom - area.height)
        area.contentY = Math.max(first, Math.min(wanted, last))
    }
}
