import QtQuick
import Tidewell

/// What lies below, seen through frosted glass. Without shaders the glass lets nothing through.
Item {
    id: root

    required property Item below
    /// Whether it follows what changes below.
    property bool isLive: true

    readonly property size smallSize: Qt.size(Math.ceil(width / 6), Math.ceil(height / 6))
    readonly property bool hasShaders: GraphicsInfo.api !== GraphicsInfo.Software

    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        color: Theme.base
    }
    ShaderEffectSource {
        id: small
        anchors.fill: parent
        visible: false
        sourceItem: root.hasShaders ? root.below : null
        textureSize { width: root.smallSize.width; height: root.smallSize.height }
        smooth: true
        live: root.isLive
    }
    ShaderEffect {
        readonly property var picture: small
        readonly property size pixel: Qt.size(1 / root.smallSize.width, 1 / root.smallSize.height)

        anchors.fill: parent
        visible: root.hasShaders
        fragmentShader: "qrc:/Tidewell/shaders/frost.frag.qsb"
        layer {
            enabled: true
            smooth: true
            textureSize { width: root.smallSize.width; height: root.smallSize.height }
        }
    }
}
