import QtQuick
import Tidewell

/// The window's canvas: near-black, with three slow lights of the accent's colour. They move ten
/// times a second, and stand where they are at the time 0 when nothing may move.
Item {
    id: root

    property color accent: Ambient.palette.primary
    /// In seconds.
    property real time: 0
    readonly property real t: Motion.hasPassages ? time : 0

    // Centre in unit points of the window, radius in points, opacity.
    readonly property vector4d firstLight: Qt.vector4d(
        Math.sin(0.23 * t) * 0.15 + 0.2, Math.cos(0.17 * t) * 0.1 - 0.02,
        680, Math.sin(0.21 * t) * 0.03 + 0.14)
    readonly property vector4d secondLight: Qt.vector4d(
        Math.sin(-0.16 * t) * 0.13 + 0.9, Math.cos(0.26 * t) * 0.08 + 1.02,
        780, Math.cos(0.19 * t) * 0.03 + 0.14)
    readonly property vector4d thirdLight: Qt.vector4d(
        Math.cos(0.11 * t) * 0.18 + 0.55, Math.sin(0.15 * t) * 0.14 + 0.45,
        600, Math.sin(0.13 * t) * 0.02 + 0.08)

    Accessible.ignored: true

    Behavior on accent {
        enabled: root.Motion.hasPassages
        ColorAnimation { duration: Theme.accentTime }
    }

    Timer {
        interval: 100
        repeat: true
        running: root.Motion.isAllowed
        onTriggered: root.time += interval / 1000
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.base
    }

    ShaderEffect {
        readonly property color accent: root.accent
        readonly property color base: Qt.tint(Theme.base, Theme.withOpacity(root.accent, 0.012))
        readonly property size size: Qt.size(width, height)
        readonly property vector4d firstLight: root.firstLight
        readonly property vector4d secondLight: root.secondLight
        readonly property vector4d thirdLight: root.thirdLight

        anchors.fill: parent
        fragmentShader: "qrc:/Tidewell/shaders/ambient.frag.qsb"
    }

    NoiseOverlay { anchors.fill: parent }
}
