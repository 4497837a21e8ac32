import QtQuick
import Tidewell

/// A glossy sphere that carries a white symbol and sways a little.
Item {
    id: root

    property string symbol
    property sectionPalette sectionPalette: Ambient.palette
    property real size: 44
    property bool wobbles: true
    /// Opacity of the light that it throws around itself.
    property real glow: 0.38
    /// From 0 to 1 while the pointer is over what it belongs to.
    property real lift: 0

    readonly property bool sways: wobbles && Motion.hasPassages
    /// In seconds. No two symbols sway in step, for each has a time of its own.
    property real time: 0
    readonly property real s: time + Math.abs(hash(symbol, 31) - hash(symbol, 17)) / 100

    implicitWidth: size
    implicitHeight: size
    rotation: sways ? Math.sin(0.8 * s) * 2.6 : 0
    scale: sways ? Math.sin(0.55 * s) * 0.018 + 1 : 1
    Accessible.ignored: true

    function hash(text: string, factor: int): int {
        let value = 7
        for (let i = 0; i < text.length; ++i)
            value = (value * factor + text.charCodeAt(i)) % 65521
        return value
    }

    FrameAnimation {
        running: root.sways && root.Motion.isAllowed
        onTriggered: root.time += frameTime
    }

    ShaderEffect {
        readonly property color deep: root.sectionPalette.deep
        readonly property color primary: root.sectionPalette.primary
        readonly property color soft: root.sectionPalette.soft
        readonly property color core: Theme.discCore(root.sectionPalette)
        readonly property real extent: width
        readonly property real diameter: root.size
        readonly property real spread: 0.28 * root.size
        readonly property real glow: root.glow + 0.2 * root.lift
        readonly property real pixel: 1 / Screen.devicePixelRatio

        anchors.centerIn: parent
        width: root.size * 1.8
        height: width
        visible: root.GraphicsInfo.api !== GraphicsInfo.Software
        fragmentShader: "qrc:/Tidewell/shaders/blob.frag.qsb"
        layer.enabled: root.Motion.isDrawnByProcessor
        layer.smooth: true
    }

    Rectangle {
        anchors.fill: parent
        visible: root.GraphicsInfo.api === GraphicsInfo.Software
        radius: root.size / 2
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.discCore(root.sectionPalette) }
            GradientStop { position: 1; color: root.sectionPalette.deep }
        }
    }

    Symbol {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: Math.max(1, root.size * 0.024)
        symbol: root.symbol
        size: root.size / 2
        tint: Theme.withOpacity(Qt.darker(root.sectionPalette.deep, 2), 0.5)
        hole: "transparent"
    }
    Symbol {
        anchors.centerIn: parent
        symbol: root.symbol
        size: root.size / 2
        tint: "white"
        hole: root.sectionPalette.deep
    }
}
