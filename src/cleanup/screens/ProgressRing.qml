import QtQuick
import Tidewell

/// A ring that follows a share, with a symbol that glimmers, the percentage and a word inside.
RingGauge {
    id: root

    property double share: 0
    property string percent
    property string symbol
    property string caption

    lineWidth: 11
    progress: share
    Accessible.ignored: false
    Accessible.role: Accessible.ProgressBar
    Accessible.name: caption
    Accessible.description: percent

    Behavior on progress {
        enabled: root.Motion.hasPassages
        NumberAnimation { duration: 350; easing.type: Easing.OutCubic }
    }

    Column {
        anchors.centerIn: parent
        spacing: Theme.gapTight

        Symbol {
            id: glimmer
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: root.symbol
            size: 26
            tint: Ambient.palette.soft

            SequentialAnimation on opacity {
                running: root.visible && root.Motion.isAllowed
                loops: Animation.Infinite
                onRunningChanged: if (!running) glimmer.opacity = 1
                NumberAnimation { to: 0.35; duration: 650; easing.type: Easing.InOutSine }
                NumberAnimation { to: 1; duration: 650; easing.type: Easing.InOutSine }
            }
        }
        FigureText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.percent
            moves: true
            size: Theme.sizeHero
            weight: Font.Bold
            Accessible.ignored: true
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            text: root.caption
            size: Theme.sizeText
            color: Theme.secondary
            Accessible.ignored: true
        }
    }
}
