pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The place of a view that another one follows. The old one fades out while the new one fades in
/// and rises a little, and takes no press any more; the new one has the keyboard if the old one had
/// it.
FocusScope {
    id: root

    property int fadeTime: Theme.comeTime
    property int fadeCurve: Easing.OutCubic
    /// How far a new view comes up, in points.
    property real rise: 8

    readonly property Item item: current.item as Item
    readonly property int leaveTime: fadeTime * Theme.goTime / Theme.comeTime

    /// Whether the user is on the way by keyboard, so that a new view shows where it is.
    property bool showsFocus: false

    // The two take turns.
    property Place current: first
    property Place other: second

    implicitWidth: item ? item.implicitWidth : 0
    implicitHeight: item ? item.implicitHeight : 0
    focus: true

    /// Shows the view of a file, made with the given properties.
    function show(view: url, given: var) {
        const hadKeyboard = activeFocus  // which goes with the old one
        const old = current
        current = other
        other = old
        old.leave()
        current.hasKeyboard = hadKeyboard
        current.come(view, given)
    }

    function clear() {
        current.leave()
    }

    Window.onActiveFocusItemChanged: {
        const control = Window.activeFocusItem as Pressable
        if (control)
            showsFocus = control.visualFocus
    }

    component Place: Loader {
        id: place

        property real lift: 0
        property bool hasKeyboard: false
        /// Its colours as they were last seen: it keeps them on its way out.
        property sectionPalette seen
        readonly property sectionPalette given: root.Ambient.palette

        anchors.fill: parent
        onGivenChanged: seeing.restart()
        transform: Translate { y: place.lift }
        onLoaded: {
            const view = item as Item
            view.focus = true
            if (hasKeyboard || root.activeFocus)
                view.forceActiveFocus(root.showsFocus ? Qt.TabFocusReason : Qt.OtherFocusReason)
        }

        Timer {
            id: seeing
            interval: 0  // once it is settled whether the view leaves
            onTriggered: {
                if (!leaving.running)
                    place.seen = place.given
            }
        }

        function come(view: url, given: var) {
            leaving.stop()
            Ambient.palette = undefined
            enabled = true
            focus = true
            setSource(view, given)
            opacity = 1
            lift = 0
            if (root.Motion.hasPassages)
                coming.restart()
        }

        function leave() {
            coming.stop()
            if (root.Motion.hasPassages && item) {
                Ambient.palette = seen
                enabled = false
                leaving.restart()
            } else {
                source = ""
            }
        }

        ParallelAnimation {
            id: coming
            NumberAnimation { target: place; property: "opacity"; from: 0; to: 1; duration: root.fadeTime; easing.type: root.fadeCurve }
            NumberAnimation { target: place; property: "lift"; from: root.rise; to: 0; duration: root.fadeTime; easing.type: root.fadeCurve }
        }
        NumberAnimation {
            id: leaving
            target: place
            property: "opacity"
            to: 0
            duration: root.leaveTime
            easing.type: root.fadeCurve
            onFinished: place.source = ""
        }
    }

    Place { id: first }
    Place { id: second }
}
