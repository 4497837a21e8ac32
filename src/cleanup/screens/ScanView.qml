import QtQuick
import Tidewell

/// The Clean tool's first screen: invites a scan, then shows how far it is.
FocusScope {
    id: root

    required property ScanScreen screen

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: Theme.ringCentre(parent.height) - 100
        spacing: 0

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 200
            height: 200

            FocusScope {
                anchors.fill: parent
                enabled: !root.screen.isScanning
                opacity: enabled ? 1 : 0
                visible: opacity > 0
                focus: true

                Fade on opacity {}

                ScanCircleButton {
                    focus: true
                    symbol: "sparkles"
                    title: root.screen.scanLabel
                    onClicked: root.screen.startScan()
                }
            }
            ProgressRing {
                anchors.centerIn: parent
                opacity: root.screen.isScanning ? 1 : 0
                visible: opacity > 0
                diameter: 200
                share: root.screen.progress
                percent: root.screen.percent
                symbol: "sparkles"
                caption: "scanning"

                Fade on opacity {}
            }
        }

        Item { width: 1; height: 34 }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.screen.caption
            size: Theme.sizeText
            color: Theme.secondary
        }

        Item { width: 1; height: 22 }

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: pill.implicitWidth
            height: pill.implicitHeight

            InfoPill {
                id: pill
                visible: root.screen.soFar !== ""

                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    symbol: "arrow.up.right"
                    size: Theme.symbolSmall
                    tint: Ambient.palette.primary
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.screen.soFar
                    size: Theme.sizeControl
                    weight: Font.Medium
                }
            }
        }
    }
}
