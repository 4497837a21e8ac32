import QtQuick
import Tidewell

/// The Home section: the overview, and in its place the smart scan while there is one.
FocusScope {
    id: root

    required property HomeScreen home
    required property SmartScanScreen smartScan

    ViewLoader {
        readonly property bool showsSmartScan: root.home.showsSmartScan

        anchors.fill: parent
        fadeTime: 350
        fadeCurve: Easing.InOutQuad
        onShowsSmartScanChanged: show()
        Component.onCompleted: show()

        function show() {
            if (showsSmartScan)
                setSource("SmartScanView.qml", {screen: root.smartScan})
            else
                setSource("HomeOverview.qml", {screen: root.home})
        }
    }
}
