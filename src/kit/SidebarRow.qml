import QtQuick
import Tidewell

/// An entry of the sidebar. The active one is filled with its section's colour and glows.
Pressable {
    id: root

    property string symbol
    property alias label: root.text
    property bool isActive: false
    property sectionPalette sectionPalette: Ambient.palette

    implicitHeight: 42
    leftPadding: 10
    rightPadding: 12
    cornerRadius: 11
    pressedScale: 0.985
    focusGap: 2

    Accessible.selectable: true
    Accessible.selected: isActive

    background: Item {
        GlowBox {
            anchors.fill: parent
            visible: root.isActive
            cornerRadius: root.cornerRadius
            reach: 24
            glow: Theme.withOpacity(root.sectionPalette.primary, 0.45)
            fillTop: Theme.raisedTop(root.sectionPalette.primary, 0)
            fillBottom: Theme.raisedBottom(root.sectionPalette.primary, 0)
            rim: Theme.raisedRim
        }
        Rectangle {
            anchors.fill: parent
            radius: root.cornerRadius
            color: Theme.hoverFill
            opacity: root.isActive ? 0 : root.lift
        }
    }

    contentItem: Item {
        GlossyBlob {
            anchors.verticalCenter: parent.verticalCenter
            size: 26
            symbol: root.symbol
            sectionPalette: root.sectionPalette
            wobbles: false
            glow: root.isActive ? 0 : 0.22
        }
        Label {
            anchors.left: parent.left
            anchors.leftMargin: 38
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.label
            size: Theme.sizeRow
            weight: root.isActive ? Font.DemiBold : Font.Medium
            color: root.isActive ? Theme.textOn(root.sectionPalette.primary)
                                 : Theme.quiet(root.lift)
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
