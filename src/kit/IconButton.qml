import QtQuick
import Tidewell

/// A round button with a symbol alone; what it does is told in a tip.
Pressable {
    id: root

    property string symbol
    property color tint: Theme.text
    property real size: 30
    property bool isFilled: true

    implicitWidth: size
    implicitHeight: size
    focusGap: 2

    background: Rectangle {
        radius: height / 2
        color: Theme.withOpacity(root.tint, (root.isFilled ? 0.10 : 0) + 0.14 * root.lift)
    }
    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            symbol: root.symbol
            size: Math.round(root.size * 0.54)
            tint: Theme.withOpacity(root.tint, 0.90 + 0.10 * root.lift)
        }
    }

    Tip {
        text: root.text
        visible: root.hovered
    }
}
