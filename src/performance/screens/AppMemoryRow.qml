import QtQuick
import Tidewell

/// An application with the memory that it holds.
Surface {
    id: root

    property string icon
    property string name
    property double fraction: 0
    property string size
    property bool isBusy: false

    signal quit()

    implicitHeight: 50
    strength: 0.6
    reacts: true
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.description: size

    AppIconView {
        id: picture
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        source: root.icon
    }
    Label {
        anchors.left: picture.right
        anchors.leftMargin: Theme.gap
        anchors.right: bar.left
        anchors.rightMargin: Theme.gapWide
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        size: Theme.sizeText
        weight: Font.Medium
        maximumLineCount: 1
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    GradientBar {
        id: bar
        anchors.right: figure.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        width: 90
        fraction: root.fraction
        Accessible.ignored: true
    }
    Item {
        id: figure
        anchors.right: action.left
        anchors.rightMargin: Theme.gapWide
        width: 66
        height: parent.height

        FigureText {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.size
            size: Theme.sizeControl
            weight: Font.Medium
            Accessible.ignored: true
        }
    }
    QuitButton {
        id: action
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        width: 58
        text: "Quit"
        description: root.name
        isBusy: root.isBusy
        onClicked: root.quit()
    }
}
