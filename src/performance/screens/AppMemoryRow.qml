import QtQuick
import Tidewell

/// An application with the memory that it holds.
Rectangle {
    id: root

    property string icon
    property string name
    property double fraction: 0
    property string size
    property bool isBusy: false
    property string quitLabel

    signal quit()

    implicitHeight: 50
    radius: 13
    color: Qt.rgba(1, 1, 1, hover.hovered ? 0.07 : 0.035)
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: size

    HoverHandler { id: hover }

    AppIconView {
        id: picture
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        source: root.icon
    }
    Label {
        anchors.left: picture.right
        anchors.leftMargin: 14
        anchors.right: bar.left
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        size: 13
        weight: Font.Medium
        maximumLineCount: 1
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    GradientBar {
        id: bar
        anchors.right: figure.left
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 90
        fraction: root.fraction
        Accessible.ignored: true
    }
    Item {
        id: figure
        anchors.right: action.left
        anchors.rightMargin: 18
        width: 66
        height: parent.height

        FigureText {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.size
            size: 12.5
            weight: Font.Medium
            Accessible.ignored: true
        }
    }
    QuitButton {
        id: action
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 58
        text: root.quitLabel
        description: root.name
        isBusy: root.isBusy
        onClicked: root.quit()
    }
}
