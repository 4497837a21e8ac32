import QtQuick
import Tidewell

/// A strip that tells how something ended. It lies over the lower end of a list, so that no row moves
/// when it comes or goes; the list leaves `room` behind its last row.
Item {
    id: root

    property string symbol
    property color tint: Ambient.palette.primary
    property string title
    property string line
    /// Of the button that undoes what the strip tells of. Empty: there is none.
    property string undoLabel
    signal undone()
    /// Whether the user takes it away.
    property bool isDismissible: false

    readonly property real room: visible ? height + 12 : 0

    /// The user takes it away, by the means that the focus reason tells.
    signal dismissed(int reason)

    implicitHeight: words.implicitHeight + 24
    z: 1
    onVisibleChanged: {
        if (visible && Motion.hasPassages)
            coming.restart()
    }
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: line

    NumberAnimation {
        id: coming
        target: root
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.comeTime
        easing.type: Easing.OutCubic
    }
    GlowBox {
        anchors.fill: parent
        cornerRadius: Theme.radius
        shade: 0.6
        fillTop: Qt.tint(Theme.base, Theme.withOpacity(root.tint, 0.18))
        fillBottom: Qt.tint(Theme.base, Theme.withOpacity(root.tint, 0.12))
        rim: Theme.withOpacity(root.tint, 0.34)
    }
    MouseArea {
        anchors.fill: parent  // what lies below is not to be pressed through it
        hoverEnabled: true
    }
    Symbol {
        id: icon
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
        size: Theme.symbolLarge
        tint: root.tint
    }
    Column {
        id: words
        anchors.left: icon.right
        anchors.leftMargin: Theme.gap
        anchors.right: undo.visible ? undo.left : dismiss.visible ? dismiss.left : parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapHair

        Label {
            width: parent.width
            text: root.title
            size: Theme.sizeText
            weight: Font.Medium
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            visible: text !== ""
            text: root.line
            size: Theme.sizeNote
            color: Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    SmallButton {
        id: undo
        anchors.right: dismiss.visible ? dismiss.left : parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        visible: root.undoLabel !== ""
        text: root.undoLabel
        onClicked: root.undone()
    }
    IconButton {
        id: dismiss
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        visible: root.isDismissible
        size: 26
        isFilled: false
        symbol: "xmark"
        text: "Dismiss"
        onClicked: root.dismissed(focusReason)
    }
}
