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

    implicitHeight: contentItem.implicitHeight + 26
    leftPadding: 16
    rightPadding: 18
    cornerRadius: Theme.radius
    pressedScale: 0.995
    text: title
    description: (badge === "" ? "" : badge + ". ") + size + ". " + detail
    checkable: true
    checked: isOn

    background: Surface {
        radius: root.cornerRadius
        tint: root.isOn ? Ambient.palette.primary : Theme.text
        lift: root.lift
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
            anchors.leftMargin: Theme.gap
            anchors.right: figure.left
            anchors.rightMargin: Theme.gapWide
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.gapTight

            Row {
                width: parent.width
                spacing: Theme.gapSmall

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth,
                                    parent.width - (mark.visible ? mark.width + parent.spacing : 0))
                    text: root.title
                    size: Theme.sizeRow
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
                size: Theme.sizeDetail
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
            size: Theme.sizeRow
            weight: Font.DemiBold
            Accessible.ignored: true
        }
    }
}
