import QtQuick
import Tidewell

/// The Clean tool's last screen: how far the clean is, then what was won.
FocusScope {
    id: root

    required property CleanedScreen screen

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: Theme.ringCentre(parent.height) - 95
        opacity: root.screen.isCleaning ? 1 : 0
        visible: opacity > 0
        spacing: Theme.gapHuge

        Fade on opacity {}

        ProgressRing {
            anchors.horizontalCenter: parent.horizontalCenter
            diameter: 190
            share: root.screen.progress
            percent: root.screen.percent
            symbol: "sparkles"
            Accessible.name: root.screen.cleaningTitle
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.screen.cleaningTitle
            size: Theme.sizePlacard
            weight: Font.Bold
            font.letterSpacing: -0.3
            Accessible.role: Accessible.Heading
        }
    }

    // Made anew each time a clean has ended, so that its figures run again.
    ViewLoader {
        readonly property bool isWanted: !root.screen.isCleaning

        anchors.fill: parent
        rise: 0  // the ring stays where it is
        onIsWantedChanged: follow()
        Component.onCompleted: follow()

        function follow() {
            if (isWanted)
                show(Qt.resolvedUrl("CleanedResult.qml"), {screen: root.screen})
            else
                clear()
        }
    }
}
