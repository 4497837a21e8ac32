import QtQuick
import Tidewell

/// A category of the review: its check ticks or unticks all of it, the rest of the row shows it.
Pressable {
    id: root

    property int mark: CheckControl.Off
    property string symbol
    property string title
    property string line
    property bool isViewing: false

    signal toggled()

    implicitHeight: 58
    cornerRadius: 13
    pressedScale: 0.985
    text: title
    description: line
    Accessible.selectable: true
    Accessible.selected: isViewing

    background: Rectangle {
        radius: root.cornerRadius
        color: root.isViewing ? Theme.withOpacity(Ambient.palette.primary, 0.15)
                              : Qt.rgba(1, 1, 1, 0.06 * root.lift)
        border.width: 1
        border.color: root.isViewing ? Theme.withOpacity(Ambient.palette.primary, 0.38) : "transparent"
    }

    contentItem: Item {
        Symbol {
            id: icon
            x: 48
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            symbol: root.symbol
            size: 20
            tint: root.isViewing ? Ambient.palette.soft : Theme.withOpacity(Theme.text, 0.80)
        }
        Column {
            anchors.left: icon.right
            anchors.leftMargin: 12
            anchors.right: chevron.left
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Label {
                width: parent.width
                text: root.title
                size: 13.5
                weight: Font.DemiBold
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            Label {
                width: parent.width
                text: root.line
                size: 11.5
                color: Theme.secondary
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
        Symbol {
            id: chevron
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            symbol: "chevron.right"
            size: 15
            tint: Theme.withOpacity(Theme.text, root.isViewing ? 0.7 : 0.32)
        }
    }

    Pressable {
        id: check
        z: 2
        width: 44
        height: parent.height
        cornerRadius: 10
        pressedScale: 0.94
        text: root.title
        description: root.line
        checkable: true
        checked: root.mark === CheckControl.On
        Accessible.checkStateMixed: root.mark === CheckControl.Mixed
        onClicked: root.toggled()

        contentItem: Item {
            CheckControl {
                anchors.centerIn: parent
                mark: root.mark
                lift: check.lift
            }
        }
    }
}
