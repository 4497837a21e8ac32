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
        onShowsSmartScanChanged: follow()
        Component.onCompleted: follow()

        function follow() {
            if (showsSmartScan)
                show(Qt.resolvedUrl("SmartScanView.qml"), {screen: root.smartScan})
            else
                show(Qt.resolvedUrl("HomeOverview.qml"), {screen: root.home})
        }
    }
}
