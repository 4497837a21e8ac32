import QtQuick
import Tidewell

/// Something worth knowing that a scan found. It fades in behind those above it.
Item {
    id: root

    property string symbol
    property string text
    /// How many stand above it.
    property int order: 0

    implicitWidth: words.x + words.implicitWidth
    implicitHeight: 22

    SequentialAnimation on opacity {
        running: root.Motion.hasPassages
        PropertyAction { value: 0 }
        PauseAnimation { duration: 140 * Math.max(root.order, 0) }
        NumberAnimation { to: 1; duration: 220; easing.type: Easing.OutCubic }
    }

    Symbol {
        id: icon
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
        size: Theme.symbolSmall
        tint: Ambient.palette.primary
    }
    Label {
        id: words
        x: 24
        anchors.verticalCenter: parent.verticalCenter
        width: root.width - x
        text: root.text
        size: Theme.sizeControl
        elide: Text.ElideRight
    }
}
