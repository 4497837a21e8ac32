import QtQuick
import Tidewell

/// A symbol by name. Says nothing to assistive tools: what it stands for is said beside it.
Item {
    id: root

    property string symbol
    property real size: Theme.symbolRow
    property color tint: Theme.text
    /// What a cut-out shows of what lies behind.
    property color hole: Qt.rgba(0, 0, 0, 0.72)

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    component Glyph: Text {
        anchors.centerIn: parent
        font.family: Kit.symbolFamily
        textFormat: Text.PlainText
        Accessible.ignored: true
    }

    Glyph {
        text: Kit.glyph(root.symbol)
        font.pixelSize: Math.floor(root.size)
        color: root.tint
    }

    Glyph {
        text: Kit.innerGlyph(root.symbol)
        font.pixelSize: Math.floor(root.size * 0.54)
        color: Kit.isInnerCutOut(root.symbol) ? root.hole : root.tint
    }
}
