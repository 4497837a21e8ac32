import QtQuick
import Tidewell

/// Text in the program's own faces.
Text {
    property real size: Theme.sizeText
    property int weight: Font.Normal
    property bool isRounded: false

    color: Theme.text
    font.family: Kit.fontFamily(isRounded)
    font.weight: Kit.fontWeight(weight, isRounded)
    font.pixelSize: Math.floor(size)  // a font has no halves, and either way of running this rounds its own
    textFormat: Text.PlainText
    linkColor: color
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
