import QtQuick
import Tidewell

/// An application, what it occupies, and whether it is used at all.
Surface {
    id: root

    property string icon
    property string title
    property string line
    property string size
    property string version
    property string mark
    property bool isUnused: false
    property string trashHelp

    signal uninstalled()

    implicitHeight: 152
    reacts: true
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: size + ". " + line + (mark === "" ? "" : ". " + mark)

    AppIconView {
        id: picture
        x: 16
        y: 16
        source: root.icon
    }
    Label {
        anchors.left: picture.right
        anchors.leftMargin: Theme.gap
        anchors.right: trash.left
        anchors.rightMargin: Theme.gapSmall
        anchors.verticalCenter: picture.verticalCenter
        text: root.title
        size: Theme.sizeRow
        weight: Font.DemiBold
        lineHeight: 1.1
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    IconButton {
        id: trash
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: picture.verticalCenter
        symbol: "trash"
        tint: Theme.destructive
        text: root.trashHelp
        onClicked: root.uninstalled()
    }
    Label {
        x: 16
        y: 68
        width: parent.width - 32
        height: 36
        text: root.line
        size: Theme.sizeNote
        lineHeight: 1.15
        color: Theme.secondary
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    FigureText {
        id: figure
        x: 16
        anchors.verticalCenter: marks.verticalCenter
        text: root.size
        size: Theme.sizeRow
        weight: Font.Bold
        Accessible.ignored: true
    }
    Row {
        id: marks
        height: 18
        anchors.right: parent.right
        anchors.rightMargin: Theme.gapWide
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.gap
        spacing: Theme.gapSmall

        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            width: Math.min(implicitWidth,
                            root.width - 40 - figure.width - (tag.visible ? tag.width + marks.spacing : 0))
            text: root.version
            size: Theme.sizeDetail
            color: Theme.faint
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Tag {
            id: tag
            anchors.verticalCenter: parent.verticalCenter
            visible: root.mark !== ""
            text: root.mark
            tint: root.isUnused ? Theme.caution : Theme.text
            textColor: root.isUnused ? Theme.caution : Theme.secondary
            strength: root.isUnused ? 0.16 : 0.10
        }
    }
}
