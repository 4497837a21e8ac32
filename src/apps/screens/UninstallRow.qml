import QtQuick
import Tidewell

/// The application itself, or one thing that it has left elsewhere, with a tick where the user
/// chooses whether that goes.
Surface {
    id: root

    property string symbol
    property string title
    property string label
    property string size
    property bool hasTick: false
    property bool isOn: true

    signal flipped()

    implicitHeight: 50
    strength: 0.8
    opacity: isOn ? 1 : 0.62
    Accessible.ignored: hasTick  // the whole row is a check box then
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: label + ". " + size

    Pressable {
        anchors.fill: parent
        visible: root.hasTick
        cornerRadius: root.radius
        pressedScale: 1
        focusGap: -2
        text: root.title
        description: root.label + ". " + root.size
        checkable: true
        checked: root.isOn
        Accessible.role: Accessible.CheckBox
        onClicked: root.flipped()

        CheckControl {
            x: 14
            anchors.verticalCenter: parent.verticalCenter
            mark: root.isOn ? CheckControl.On : CheckControl.Off
            lift: (parent as Pressable).lift
        }
    }
    Symbol {
        id: icon
        x: root.hasTick ? 44 : 14
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
        size: Theme.symbolRow
        tint: Ambient.palette.soft
    }
    Column {
        anchors.left: icon.right
        anchors.leftMargin: Theme.gap
        anchors.right: figure.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapHair

        Label {
            width: parent.width
            text: root.title
            size: Theme.sizeText
            weight: Font.Medium
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.label
            size: Theme.sizeMinor
            color: Theme.secondary
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    FigureText {
        id: figure
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        text: root.size
        size: Theme.sizeControl
        weight: Font.DemiBold
        Accessible.ignored: true
    }
}
