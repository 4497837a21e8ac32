import QtQuick
import Tidewell

/// What a clean has won, and what would not go.
FocusScope {
    id: root

    required property CleanedScreen screen

    /// Runs to its end whatever was freed: it measures nothing.
    property real ringProgress: Motion.hasPassages ? 0 : 1

    NumberAnimation on ringProgress {
        running: root.Motion.hasPassages
        from: 0
        to: 1
        duration: 1800
        easing.type: Easing.OutCubic
    }

    Column {
        id: column
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.min(Theme.ringCentre(parent.height) - 95, Math.max(20, parent.height - height - 20))
        width: 480
        spacing: 0

        RingGauge {
            anchors.horizontalCenter: parent.horizontalCenter
            diameter: 190
            lineWidth: 11
            progress: root.ringProgress

            Column {
                anchors.centerIn: parent
                spacing: Theme.gapTight

                Item {
                    anchors.horizontalCenter: parent.horizontalCenter
                    visible: root.screen.hasReclaimed
                    width: 140
                    height: figure.implicitHeight

                    CountUpBytes {
                        id: figure
                        anchors.horizontalCenter: parent.horizontalCenter
                        target: root.screen.reclaimedBytes
                        duration: 1.8
                        size: Theme.sizeRing
                        scale: Math.min(1, parent.width / Math.max(1, implicitWidth))
                    }
                }
                Label {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: root.screen.ringLine
                    size: root.screen.hasReclaimed ? Theme.sizeText : Theme.sizePlacard
                    weight: root.screen.hasReclaimed ? Font.Normal : Font.Bold
                    color: root.screen.hasReclaimed ? Theme.secondary : Theme.text
                }
            }
        }

        Item { width: 1; height: 26 }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.screen.doneTitle
            size: Theme.sizeTitle
            weight: Font.Bold
            font.letterSpacing: -0.4
            Accessible.role: Accessible.Heading
        }

        Item { width: 1; height: 4 }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.screen.doneLine
            size: Theme.sizeRow
            color: Theme.secondary
        }

        Item { width: 1; height: 20 }

        InfoPill {
            anchors.horizontalCenter: parent.horizontalCenter

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.screen.freeBefore
                size: Theme.sizeControl
                color: Theme.secondary
            }
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "arrow.right"
                size: Theme.symbolSmall
                tint: Ambient.palette.primary
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.screen.freeAfter
                size: Theme.sizeControl
                weight: Font.DemiBold
            }
        }

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.screen.failureNote !== ""
            width: note.width
            height: note.height + 20

            FailureNote {
                id: note
                y: 20
                width: 440
                title: root.screen.failureTitle
                text: root.screen.failureNote
            }
        }

        Item { width: 1; height: 28 }

        PillButton {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            horizontalPadding: 38
            text: "Done"
            onClicked: root.screen.finish()
        }
    }
}
