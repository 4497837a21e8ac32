import QtQuick
import Tidewell

/// Rings of dots. The lit ones grow and brighten outward, the last tenth of them shines.
ShaderEffect {
    property sectionPalette sectionPalette: Ambient.palette
    property real diameter
    property real innerRadius
    property real lit
    readonly property real rings: 5
    readonly property real extent: diameter + 70
    readonly property color deep: sectionPalette.deep
    readonly property color primary: sectionPalette.primary
    readonly property color soft: sectionPalette.soft
    readonly property real pixel: 1 / Screen.devicePixelRatio

    width: extent
    height: extent
    fragmentShader: "qrc:/Tidewell/shaders/dots.frag.qsb"
    layer.enabled: Motion.isDrawnByProcessor
    layer.smooth: true
}
