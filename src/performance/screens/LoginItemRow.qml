import QtQuick
import Tidewell

/// Something that starts by itself, and whose it is.
Surface {
    id: root

    property string symbol
    property string label
    property string program
    property string scope

    signal reveal()

    implicitHeight: 54
    strength: 0.6
    reacts: true
    Accessible.role: Accessible.ListItem
    Accessible.name: label
    Accessible.description: program + ". " + scope

    Symbol {
        id: icon
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
        size: Theme.symbolRow
        tint: Ambient.palette.soft
    }
    Column {
        anchors.left: icon.right
        anchors.leftMargin: Theme.gapWide
        anchors.right: capsule.left
        anchors.rightMargin: Theme.gapWide
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapTight

        Label {
            width: parent.width
            text: root.label
            size: Theme.sizeText
            weight: Font.Medium
            maximumLineCount: 1
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.program
            size: Theme.sizeTiny
            color: Theme.secondary
            maximumLineCount: 1
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }
    Rectangle {
        id: capsule
        anchors.right: action.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        width: scopeLabel.implicitWidth + 18
        height: 20
        radius: Theme.radiusSmall
        color: Theme.hover(1.4)

        Label {
            id: scopeLabel
            anchors.centerIn: parent
            text: root.scope
            size: Theme.sizeTag
            weight: Font.Medium
            color: Theme.withOpacity(Theme.text, 0.78)
            Accessible.ignored: true
        }
    }
    SmallButton {
        id: action
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        fontSize: Theme.sizeNote
        horizontalPadding: 13
        verticalPadding: 6
        text: "Reveal"
        description: root.label
        onClicked: root.reveal()
    }
}
