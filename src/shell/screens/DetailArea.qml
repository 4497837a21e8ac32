import QtQuick
import Tidewell

/// The place of the tools' screens.
ViewLoader {
    id: root

    required property WindowScreen screen

    /// Where the views lie, and what each one shows.
    readonly property var views: ({
        "HomeView": ["HomeView.qml", {home: screen.home, smartScan: screen.smartScan}],
        "ScanView": ["../../cleanup/screens/ScanView.qml", {screen: screen.scan}],
        "ReviewView": ["../../cleanup/screens/ReviewView.qml", {screen: screen.review}],
        "CleanedView": ["../../cleanup/screens/CleanedView.qml", {screen: screen.cleaned}],
        "PerformanceView": ["../../performance/screens/PerformanceView.qml", {screen: screen.performance}],
        "DevModeView": ["../../devmode/screens/DevModeView.qml", {screen: screen.devMode}],
        "AppsView": ["../../apps/screens/AppsView.qml", {screen: screen.apps}],
        "DeepScanView": ["../../deepscan/screens/DeepScanView.qml", {screen: screen.deepScan}],
        "AdvisorView": ["../../advisor/screens/AdvisorView.qml", {screen: screen.advisor}],
    })
    readonly property string wanted: screen.detailView

    onWantedChanged: follow()
    Component.onCompleted: follow()

    function follow() {
        const [view, given] = views[wanted]
        show(Qt.resolvedUrl(view), given)
    }
}
