import QtQuick
import Tidewell

/// Something that starts by itself, and whose it is.
Rectangle {
    id: root

    property string symbol
    property string label
    property string program
    property string scope
    property string revealLabel

    signal reveal()

    implicitHeight: 54
    radius: 13
    color: Qt.rgba(1, 1, 1, hover.hovered ? 0.07 : 0.035)
    Accessible.role: Accessible.ListItem
    Accessible.name: label
    Accessible.description: program + ". " + scope

    HoverHandler { id: hover }

    Symbol {
        id: icon
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
        size: 18
        tint: Ambient.palette.soft
    }
    Column {
        anchors.left: icon.right
        anchors.leftMargin: 16
        anchors.right: capsule.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3

        Label {
            width: parent.width
            text: root.label
            size: 13
            weight: Font.Medium
            maximumLineCount: 1
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.program
            size: 10
            color: Theme.secondary
            maximumLineCount: 1
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }
    Rectangle {
        id: capsule
        anchors.right: action.left
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: scopeLabel.implicitWidth + 18
        height: 20
        radius: 10
        color: Qt.rgba(1, 1, 1, 0.08)

        Label {
            id: scopeLabel
            anchors.centerIn: parent
            text: root.scope
            size: 10.5
            weight: Font.Medium
            color: Theme.withOpacity(Theme.text, 0.78)
            Accessible.ignored: true
        }
    }
    SmallButton {
        id: action
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        fontSize: 12
        horizontalPadding: 13
        verticalPadding: 6
        text: root.revealLabel
        description: root.label
        onClicked: root.reveal()
    }
}
