pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// A figure. While it moves its digits all take the same width, so that it does not shake.
Row {
    id: root

    property string text
    property real size: Theme.sizeText
    property int weight: Font.Normal
    property bool isRounded: false
    property color color: Theme.text
    property bool moves: false

    /// From the top to the line that the figures stand on.
    readonly property real ascent: metrics.ascent

    /// Large figures stand closer.
    readonly property real digitWidth: zero.advanceWidth - (size < 20 ? 0 : size * 0.035)

    height: metrics.height
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    FontMetrics {
        id: metrics
        font.family: Kit.fontFamily(root.isRounded)
        font.weight: Kit.fontWeight(root.weight, root.isRounded)
        font.pixelSize: Math.floor(root.size)
    }

    TextMetrics {
        id: zero
        font: metrics.font
        text: "0"
    }

    Repeater {
        model: root.moves ? root.text.length : 1

        Item {
            id: cell

            required property int index
            readonly property bool isDigit: root.moves && glyph.text >= "0" && glyph.text <= "9"

            width: isDigit ? root.digitWidth : glyph.implicitWidth
            height: glyph.height

            Label {
                id: glyph
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.moves ? root.text.charAt(cell.index) : root.text
                size: root.size
                weight: root.weight
                isRounded: root.isRounded
                color: root.color
                font.letterSpacing: root.moves || root.size < 20 ? 0 : -0.02 * root.size
                Accessible.ignored: true
            }
        }
    }
}
