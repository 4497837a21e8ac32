import QtQuick
import Tidewell

/// An entry of the sidebar. The active one is filled with its section's colour and glows.
Pressable {
    id: root

    property string symbol
    property alias label: root.text
    property bool isActive: false
    property sectionPalette sectionPalette: Ambient.palette
    /// Words are readable at each moment of the fill's coming and going.
    readonly property bool isFilled: fill.opacity > 0.5

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
            id: fill
            anchors.fill: parent
            opacity: root.isActive ? 1 : 0
            visible: opacity > 0
            cornerRadius: root.cornerRadius
            reach: 24
            glow: Theme.withOpacity(root.sectionPalette.primary, 0.45)
            fillTop: Theme.raisedTop(root.sectionPalette.primary, 0)
            fillBottom: Theme.raisedBottom(root.sectionPalette.primary, 0)
            rim: Theme.raisedRim
            Fade on opacity {}
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
            color: root.isFilled ? Theme.textOn(root.sectionPalette.primary)
                                 : Theme.quiet(root.lift)
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
