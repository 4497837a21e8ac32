import QtQuick
import Tidewell

/// One item of the review. A click anywhere on it flips its tick.
Pressable {
    id: root

    property string title
    property string detail
    property string size
    property bool isOn: false
    /// Said beside the title of what can cost the user something; empty for all else.
    property string badge

    readonly property color accent: Ambient.palette.primary

    implicitHeight: contentItem.implicitHeight + 26
    leftPadding: 16
    rightPadding: 18
    cornerRadius: 14
    pressedScale: 0.995
    text: title
    description: (badge === "" ? "" : badge + ". ") + size + ". " + detail
    checkable: true
    checked: isOn

    background: Rectangle {
        radius: root.cornerRadius
        border.width: 1
        border.color: root.isOn ? Theme.withOpacity(root.accent, 0.22 + 0.20 * root.lift)
                                : Qt.rgba(1, 1, 1, 0.05 + 0.08 * root.lift)
        gradient: Gradient {
            GradientStop {
                position: 0
                color: root.isOn ? Theme.withOpacity(root.accent, 0.070 + 0.04 * root.lift)
                                 : Qt.rgba(1, 1, 1, 0.050 + 0.03 * root.lift)
            }
            GradientStop {
                position: 1
                color: root.isOn ? Theme.withOpacity(root.accent, 0.038 + 0.03 * root.lift)
                                 : Qt.rgba(1, 1, 1, 0.030 + 0.02 * root.lift)
            }
        }
    }

    contentItem: Item {
        implicitHeight: column.implicitHeight

        // An edge for what is not to be ticked without a look.
        Rectangle {
            x: -root.leftPadding + 1
            anchors.verticalCenter: parent.verticalCenter
            width: 3
            height: parent.height
            radius: 1.5
            visible: root.badge !== ""
            color: Theme.caution
        }

        CheckControl {
            id: check
            anchors.verticalCenter: parent.verticalCenter
            mark: root.isOn ? CheckControl.On : CheckControl.Off
            lift: root.lift
        }
        Column {
            id: column
            anchors.left: check.right
            anchors.leftMargin: 14
            anchors.right: figure.left
            anchors.rightMargin: 18
            anchors.verticalCenter: parent.verticalCenter
            spacing: 4

            Row {
                width: parent.width
                spacing: 8

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth,
                                    parent.width - (mark.visible ? mark.width + parent.spacing : 0))
                    text: root.title
                    size: 13.5
                    weight: Font.Medium
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
                Tag {
                    id: mark
                    anchors.verticalCenter: parent.verticalCenter
                    visible: text !== ""
                    text: root.badge
                    tint: Theme.caution
                }
            }
            Label {
                width: parent.width
                text: root.detail
                size: 11.5
                lineHeight: 1.15
                color: Theme.secondary
                wrapMode: Text.Wrap
                maximumLineCount: 4
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
        FigureText {
            id: figure
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.size
            size: 13.5
            weight: Font.DemiBold
            Accessible.ignored: true
        }
    }
}
