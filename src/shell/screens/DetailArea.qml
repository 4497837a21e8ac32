pragma ComponentBehavior: Bound
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
        anchors.fill: parent
        focus: true
        sourceComponent: {
            switch (root.screen.detailView) {
            case "HomeView": return homeView
            case "ScanView": return scanView
            case "ReviewView": return reviewView
            case "CleanedView": return cleanedView
            }
            return null
        }
        onLoaded: {
            if (Motion.hasPassages)
                fade.restart()
            if (activeFocus)
                (item as Item).forceActiveFocus(root.showsFocus ? Qt.TabFocusReason : Qt.OtherFocusReason)
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

    Component {
        id: homeView
        HomeView {
            screen: root.screen.home
            smartScan: root.screen.smartScan
        }
    }
    Component {
        id: scanView
        ScanView { screen: root.screen.scan }
    }
    Component {
        id: reviewView
        ReviewView { screen: root.screen.review }
    }
    Component {
        id: cleanedView
        CleanedView { screen: root.screen.cleaned }
    }
}
