import QtQuick
import Tidewell

/// The Home section: the overview, and in its place the smart scan while there is one.
FocusScope {
    id: root

    required property HomeScreen home
    required property SmartScanScreen smartScan

    Loader {
        id: place

        readonly property bool showsSmartScan: root.home.showsSmartScan

        anchors.fill: parent
        focus: true
        onShowsSmartScanChanged: show()
        Component.onCompleted: show()
        onLoaded: {
            if (Motion.hasPassages)
                fade.restart()
        }

        function show() {
            if (showsSmartScan)
                setSource("SmartScanView.qml", {screen: root.smartScan, focus: true})
            else
                setSource("HomeOverview.qml", {screen: root.home, focus: true})
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
}
