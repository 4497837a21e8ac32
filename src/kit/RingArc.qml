import QtQuick
import QtQuick.Shapes
import Tidewell

/// A ring, or a part of one, that is filled with the accent's colours up to a share. Angles are
/// shares of the circle, from the top to the right.
Item {
    id: root

    property real diameter: 160
    property real lineWidth: 11
    property sectionPalette sectionPalette: Ambient.palette
    property real start: 0
    property real span: 1
    /// Share of the span that is filled.
    property real fill: 0
    /// Share of the circle, from the start on, over which the colours go from deep to soft.
    property real gradientSpan: span
    property real glow: 0.35
    property color deep: sectionPalette.deep
    property color primary: sectionPalette.primary
    property color soft: sectionPalette.soft
    /// Opacity of the white below what is not filled.
    property real track: Theme.track.a

    readonly property bool hasShaders: GraphicsInfo.api !== GraphicsInfo.Software

    implicitWidth: diameter
    implicitHeight: diameter
    Accessible.ignored: true

    ShaderEffect {
        readonly property color deep: root.deep
        readonly property color primary: root.primary
        readonly property color soft: root.soft
        readonly property real extent: width
        readonly property real diameter: root.diameter
        readonly property real lineWidth: root.lineWidth
        readonly property real start: root.start
        readonly property real span: root.span
        readonly property real fill: root.fill
        readonly property real gradientSpan: root.gradientSpan
        readonly property real glow: root.glow
        readonly property real track: root.track
        readonly property real pixel: 1 / Screen.devicePixelRatio

        anchors.centerIn: parent
        width: root.diameter + 60
        height: width
        visible: root.hasShaders
        fragmentShader: "qrc:/Tidewell/shaders/ring.frag.qsb"
        layer.enabled: root.Motion.isDrawnByProcessor
        layer.smooth: true
    }

    Shape {
        anchors.fill: parent
        visible: !root.hasShaders

        ShapePath {
            strokeColor: Theme.withOpacity(Theme.track, root.track)
            strokeWidth: root.lineWidth
            fillColor: "transparent"
            capStyle: ShapePath.FlatCap
            PathAngleArc {
                centerX: root.diameter / 2
                centerY: root.diameter / 2
                radiusX: (root.diameter - root.lineWidth) / 2
                radiusY: radiusX
                startAngle: root.start * 360 - 90
                sweepAngle: root.span * 360
            }
        }
        ShapePath {
            strokeColor: root.fill > 0 ? root.primary : "transparent"
            strokeWidth: root.lineWidth
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            PathAngleArc {
                centerX: root.diameter / 2
                centerY: root.diameter / 2
                radiusX: (root.diameter - root.lineWidth) / 2
                radiusY: radiusX
                startAngle: root.start * 360 - 90
                sweepAngle: root.fill * root.span * 360
            }
        }
    }
}
