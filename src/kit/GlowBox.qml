import QtQuick
import Tidewell

/// The rounded box that cards, buttons and rows are drawn on, with a shadow and a coloured glow
/// around it. It draws up to `reach` points past its own edges, so nothing around it may clip.
Item {
    id: root

    property real cornerRadius: Theme.radiusCard
    property color fillTop
    property color fillBottom: fillTop
    /// Its opacity is that of the lower half; the top is lit.
    property color rim: Theme.hairline
    /// Its opacity is the strength.
    property color glow: "transparent"
    property real reach: 36
    /// How much of the glow's colour falls in from the upper left corner, from 0 to 1.
    property real cornerLight: 0
    /// Opacity of the dark shadow.
    property real shade: 0.42

    readonly property bool hasShaders: GraphicsInfo.api !== GraphicsInfo.Software

    ShaderEffect {
        readonly property color glow: root.glow
        readonly property color fillTop: root.fillTop
        readonly property color fillBottom: root.fillBottom
        readonly property color rim: root.rim
        readonly property size size: Qt.size(width, height)
        readonly property real reach: root.reach
        readonly property real radius: Math.min(root.cornerRadius, root.height / 2)
        readonly property real cornerLight: root.cornerLight
        readonly property real shade: root.shade
        readonly property real pixel: 1 / Screen.devicePixelRatio

        anchors.fill: parent
        anchors.margins: -root.reach
        visible: root.hasShaders
        fragmentShader: "qrc:/Tidewell/shaders/card.frag.qsb"
        layer.enabled: root.Motion.isDrawnByProcessor
        layer.smooth: true
    }

    Rectangle {
        anchors.fill: parent
        visible: !root.hasShaders
        radius: root.cornerRadius
        border.color: root.rim
        gradient: Gradient {
            GradientStop { position: 0; color: root.fillTop }
            GradientStop { position: 1; color: root.fillBottom }
        }
    }
}
