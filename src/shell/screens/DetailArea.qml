import QtQuick
import Tidewell

/// The place of the tools' screens. A new one fades in, and has the keyboard if the last one had it.
FocusScope {
    id: root

    required property WindowScreen screen

    /// Whether the user is on the way by keyboard, so that a new screen shows where it is.
    property bool showsFocus: false

    focus: true

    Window.onActiveFocusItemChanged: {
        const control = Window.activeFocusItem as Pressable
        if (control)
            showsFocus = control.visualFocus
    }

    Loader {
        id: place

        /// Where the views lie, and the screen that each one shows.
        readonly property var views: ({
            "HomeView": ["HomeView.qml", {home: root.screen.home, smartScan: root.screen.smartScan}],
            "ScanView": ["../../cleanup/screens/ScanView.qml", {screen: root.screen.scan}],
            "ReviewView": ["../../cleanup/screens/ReviewView.qml", {screen: root.screen.review}],
            "CleanedView": ["../../cleanup/screens/CleanedView.qml", {screen: root.screen.cleaned}],
        })
        readonly property string wanted: root.screen.detailView

        anchors.fill: parent
        focus: true
        onWantedChanged: show()
        Component.onCompleted: show()
        onLoaded: {
            if (Motion.hasPassages)
                fade.restart()
            if (activeFocus)
                (item as Item).forceActiveFocus(root.showsFocus ? Qt.TabFocusReason : Qt.OtherFocusReason)
        }

        function show() {
            const view = views[wanted]
            if (view)
                setSource(view[0], view[1])
            else
                source = ""
        }

        NumberAnimation {
            id: fade
            target: place.item
            property: "opacity"
            from: 0
            to: 1
            duration: 180
            easing.type: Easing.OutCubic
        }
    }
}
