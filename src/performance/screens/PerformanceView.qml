import QtQuick
import Tidewell

/// What uses memory, and what starts by itself.
FocusScope {
    id: root

    required property PerformanceScreen screen

    readonly property real margin: Theme.pageMargin(width)

    Component.onCompleted: screen.open()

    ScreenHeader {
        x: root.margin
        y: 30
        width: parent.width - 2 * root.margin - 330
        visible: root.screen.phase !== PerformanceScreen.Idle
        title: root.screen.title
        subtitle: root.screen.subtitle
    }

    ViewLoader {
        readonly property int phase: root.screen.phase

        anchors.fill: parent
        onPhaseChanged: follow()
        Component.onCompleted: follow()

        function follow() {
            if (phase === PerformanceScreen.Idle)
                show(Qt.resolvedUrl("PerformanceStart.qml"), {screen: root.screen})
            else if (phase === PerformanceScreen.Scanning)
                show(Qt.resolvedUrl("PerformanceScanning.qml"), {screen: root.screen})
            else
                show(Qt.resolvedUrl("PerformanceList.qml"), {screen: root.screen, margin: root.margin})
        }
    }
}
