pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The Home section: the overview, and in its place the smart scan while there is one.
FocusScope {
    id: root

    required property HomeScreen screen
    required property SmartScanScreen smartScan

    Loader {
        id: place
        anchors.fill: parent
        focus: true
        sourceComponent: root.screen.showsSmartScan ? smartScanView : overview
        onLoaded: {
            if (Motion.hasPassages)
                fade.restart()
        }

        NumberAnimation {
            id: fade
            target: place.item
            property: "opacity"
            from: 0
            to: 1
            duration: 350
            easing.type: Easing.InOutQuad
        }
    }

    Component {
        id: overview
        HomeOverview {
            focus: true
            screen: root.screen
        }
    }
    Component {
        id: smartScanView
        SmartScanView {
            focus: true
            screen: root.smartScan
        }
    }
}
