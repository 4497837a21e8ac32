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
            size: Theme.sizeHeading
            weight: Font.Bold
            isRounded: true
        }
    }
    Column {
        anchors.left: ring.right
        anchors.leftMargin: Theme.gapWide
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapHair

        CountUpBytes {
            duration: 0
            target: root.screen.freeBytes
            size: Theme.sizeTitle
        }
        Label {
            text: root.screen.freeOf
            size: Theme.sizeMinor
            color: Theme.secondary
        }
        Row {
            topPadding: 5
            spacing: Theme.gapTight
            visible: root.screen.reclaimed !== ""

            Symbol {
                anchors.verticalCenter: words.verticalCenter
                symbol: "arrow.up.right"
                size: Theme.symbolTiny
                tint: Ambient.palette.primary
            }
            Label {
                id: words
                text: root.screen.reclaimed
                size: Theme.sizeMinor
                weight: Font.Medium
                color: Ambient.palette.soft
            }
        }
    }
}
