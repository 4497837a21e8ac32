import QtQuick
import Tidewell

/// The place of a view that another one follows. A new one fades in, and has the keyboard if the
/// last one had it.
Loader {
    id: root

    property int fadeTime: 180
    property int fadeCurve: Easing.OutCubic

    /// Whether the user is on the way by keyboard, so that a new view shows where it is.
    property bool showsFocus: false

    focus: true
    onLoaded: {
        if (Motion.hasPassages)
            fade.restart()
        const view = item as Item
        view.focus = true
        if (activeFocus)
            view.forceActiveFocus(showsFocus ? Qt.TabFocusReason : Qt.OtherFocusReason)
    }

    Window.onActiveFocusItemChanged: {
        const control = Window.activeFocusItem as Pressable
        if (control)
            showsFocus = control.visualFocus
    }

    NumberAnimation {
        id: fade
        target: root.item
        property: "opacity"
        from: 0
        to: 1
        duration: root.fadeTime
        easing.type: root.fadeCurve
    }
}
