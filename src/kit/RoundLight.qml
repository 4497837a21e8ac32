import QtQuick
import Tidewell

/// A light that fades to nothing at the item's edge.
ShaderEffect {
    property color tint: Ambient.palette.primary
    /// Opacity in the middle.
    property real strength: 0.12
    property real radius: 200
    readonly property color light: Theme.withOpacity(tint, strength)

    width: 2 * radius
    height: 2 * radius
    fragmentShader: "qrc:/Tidewell/shaders/light.frag.qsb"
    Accessible.ignored: true
}
