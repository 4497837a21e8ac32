import QtQuick
import Tidewell

/// A Simulator runtime, who uses it, and the way to delete it.
Item {
    id: root

    property string title
    property string build
    property string size
    property string lastUsed
    property string usedBy
    property bool isBusy: false
    property bool isDeletable: true

    signal deletePressed()

    implicitHeight: words.implicitHeight + 22
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: size + ". " + (lastUsed === "" ? "" : lastUsed + ". ") + usedBy

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.hairline
    }
    Column {
        id: words
        anchors.left: parent.left
        anchors.right: figure.left
        anchors.rightMargin: Theme.gapWide
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapHair

        Row {
            spacing: Theme.gapSmall

            Label {
                id: name
                text: root.title
                size: Theme.sizeRow
                weight: Font.DemiBold
                Accessible.ignored: true
            }
            Label {
                y: name.baselineOffset - baselineOffset
                text: root.build
                size: Theme.sizeDetail
                color: Theme.faint
                Accessible.ignored: true
            }
        }
        Label {
            width: parent.width
            visible: text !== ""
            text: root.lastUsed
            size: Theme.sizeNote
            color: Theme.secondary
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.usedBy
            size: Theme.sizeNote
            color: Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    FigureText {
        id: figure
        anchors.right: control.left
        anchors.rightMargin: Theme.gapWide
        anchors.verticalCenter: parent.verticalCenter
        text: root.size
        size: Theme.sizeRow
        weight: Font.Bold
        Accessible.ignored: true
    }
    Item {
        id: control
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: button.implicitWidth
        height: button.implicitHeight

        SmallButton {
            id: button
            anchors.fill: parent
            visible: !root.isBusy
            enabled: root.isDeletable
            textColor: Theme.destructive
            text: "Delete…"
            description: root.title
            onClicked: root.deletePressed()
        }
        Spinner {
            anchors.centerIn: parent
            visible: root.isBusy
            diameter: 16
            Accessible.name: root.title
        }
    }
}
