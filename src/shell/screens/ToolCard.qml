import QtQuick
import Tidewell

/// A tool of the smart scan: whether its turn has come, and what it found.
Pressable {
    id: root

    property string symbol
    property string line
    property string mark
    property string hoverMark
    property bool isActive: false
    property bool isDone: false
    property bool opens: false
    property real dimming: 1

    width: 150
    implicitHeight: 132
    padding: 14
    cornerRadius: Theme.radiusCard
    pressedScale: opens ? 0.97 : 1
    description: line
    opacity: dimming
    focusPolicy: opens ? Qt.StrongFocus : Qt.NoFocus

    background: GlowCard {
        cornerRadius: root.cornerRadius
        lift: root.isActive ? 1 : root.opens ? root.lift : 0
        featured: root.isActive
    }
    contentItem: Item {
        GlossyBlob {
            id: blob
            anchors.horizontalCenter: parent.horizontalCenter
            size: 38
            symbol: root.symbol
            wobbles: root.isActive
            lift: root.lift
        }
        Label {
            id: name
            anchors.top: blob.bottom
            anchors.topMargin: Theme.gapSmall
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.text
            size: Theme.sizeRow
            weight: Font.DemiBold
            Accessible.ignored: true
        }
        Label {
            id: words
            anchors.top: name.bottom
            anchors.topMargin: Theme.gapHair
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: root.line
            size: Theme.sizeNote
            weight: root.isDone ? Font.Medium : Font.Normal
            color: root.isDone ? Ambient.palette.soft : Theme.secondary
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Item {
            anchors.top: words.bottom
            anchors.topMargin: Theme.gapTight
            anchors.horizontalCenter: parent.horizontalCenter
            width: done.width
            height: done.height
            visible: root.isDone

            Row {
                id: done
                spacing: Theme.gapTight
                opacity: root.opens ? 1 - hovering.opacity : 1

                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    symbol: "checkmark.circle.fill"
                    size: Theme.symbolTiny
                    tint: Ambient.palette.primary
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.mark
                    size: Theme.sizeMinor
                    color: Theme.secondary
                    Accessible.ignored: true
                }
            }
            Label {
                id: hovering
                anchors.centerIn: parent
                text: root.hoverMark
                size: Theme.sizeMinor
                color: Ambient.palette.soft
                opacity: root.opens && root.hovered ? 1 : 0
                Accessible.ignored: true

                Behavior on opacity {
                    enabled: root.Motion.hasPassages
                    NumberAnimation { duration: 250; easing.type: Easing.InOutQuad }
                }
            }
        }
    }
}
