import QtQuick
import QtQuick.Templates as T
import Tidewell

/// Content that may be higher than its place. The control that the keyboard comes to is brought
/// into sight.
Flickable {
    id: root

    boundsBehavior: Flickable.StopAtBounds
    contentWidth: width
    clip: contentHeight > height
    activeFocusOnTab: false

    Window.onActiveFocusItemChanged: {
        const control = Window.activeFocusItem as Pressable
        if (control && control.visualFocus && isInside(control))
            reveal(control)
    }

    T.ScrollBar.vertical: ScrollHandle {}

    function isInside(control: Item): bool {
        for (let place = control.parent; place; place = place.parent)
            if (place === contentItem)
                return true
        return false
    }

    function reveal(control: Item) {
        const room = 20
        const top = control.mapToItem(contentItem, 0, 0).y - room
        const bottom = top + control.height + 2 * room
        const wanted = top < contentY ? top : Math.max(contentY, bottom - height)
        contentY = Math.max(0, Math.min(wanted, contentHeight - height))
    }
}
