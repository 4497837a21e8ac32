import QtQuick
import Tidewell

/// A symbol in a small rounded square of the accent's colour.
Rectangle {
    id: root

    property string symbol
    property real size: 34
    property color tint: Ambient.palette.primary
    property color symbolColor: Theme.ink(tint)

    implicitWidth: size
    implicitHeight: size
    radius: size * 0.29
    border.width: 1
    border.color: Theme.withOpacity(tint, 0.26)
    gradient: Gradient {
        GradientStop { position: 0; color: Theme.withOpacity(root.tint, 0.24) }
        GradientStop { position: 1; color: Theme.withOpacity(root.tint, 0.12) }
    }
    Accessible.ignored: true

    Symbol {
        anchors.centerIn: parent
        symbol: root.symbol
        size: Math.round(root.size * 0.56)
        tint: root.symbolColor
        hole: Qt.rgba(0.05, 0.07, 0.06, 0.9)
    }
}
