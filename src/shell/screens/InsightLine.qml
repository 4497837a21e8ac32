import QtQuick
import Tidewell

/// Something worth knowing that a scan found.
Item {
    id: root

    property string symbol
    property string text
    property real maximumWidth: 600

    implicitWidth: words.x + words.width
    implicitHeight: 22

    Symbol {
        id: icon
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
        size: 15
        tint: Ambient.palette.primary
    }
    Label {
        id: words
        x: icon.width + 9
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, root.maximumWidth - x)
        text: root.text
        size: 12.5
        elide: Text.ElideRight
    }
}
