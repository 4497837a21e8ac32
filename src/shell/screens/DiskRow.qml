import QtQuick
import Tidewell

/// How much of the disk is used, what is free, and what was won back.
Item {
    id: root

    required property MenuBarScreen screen

    implicitHeight: ring.height

    RingGauge {
        id: ring
        diameter: 80
        lineWidth: 8
        progress: root.screen.usedFraction

        FigureText {
            anchors.centerIn: parent
            text: root.screen.usedPercent
            size: 17
            weight: Font.Bold
            isRounded: true
        }
    }
    Column {
        anchors.left: ring.right
        anchors.leftMargin: 18
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        CountUpBytes {
            duration: 0
            target: root.screen.freeBytes
            size: 27
        }
        Label {
            text: root.screen.freeOf
            size: 11
            color: Theme.secondary
        }
        Row {
            topPadding: 5
            spacing: 4
            visible: root.screen.reclaimed !== ""

            Symbol {
                anchors.verticalCenter: words.verticalCenter
                symbol: root.screen.reclaimedSymbol
                size: 13
                tint: Ambient.palette.primary
            }
            Label {
                id: words
                text: root.screen.reclaimed
                size: 11
                weight: Font.Medium
                color: Ambient.palette.soft
            }
        }
    }
}
