pragma Singleton
import QtQuick
import Tidewell

/// The colours and measures that all components share. Lengths are in points, times in milliseconds.
QtObject {
    readonly property color base: "#060909"
    readonly property color text: "#f3f6f4"
    readonly property color secondary: Kit.secondary
    readonly property color faint: Qt.rgba(1, 1, 1, 0.46)
    readonly property color track: Qt.rgba(1, 1, 1, 0.07)
    readonly property color hoverFill: Qt.rgba(1, 1, 1, 0.06)
    readonly property color destructive: Kit.destructive
    readonly property color success: "#33d682"
    readonly property color caution: "#ffa033"

    readonly property int hoverTime: 170
    readonly property int pressTime: 110
    readonly property int accentTime: 450

    /// Near-black of a colour's hue: what is legible on a fill of that colour.
    function textOn(fill: color): color {
        return Qt.hsva(Math.max(fill.hsvHue, 0), 0.82, 0.10, 1)
    }

    function withOpacity(tint: color, opacity: real): color {
        return Qt.rgba(tint.r, tint.g, tint.b, opacity)
    }
}
