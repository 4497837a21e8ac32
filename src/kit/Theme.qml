pragma Singleton
import QtQuick
import Tidewell

/// The colours and measures that all components share. Lengths are in points, times in milliseconds.
QtObject {
    readonly property color base: "#060909"
    readonly property color text: "#f3f6f4"
    readonly property color secondary: Kit.secondary
    readonly property color faint: Qt.rgba(1, 1, 1, 0.56)
    readonly property color track: Qt.rgba(1, 1, 1, 0.07)
    readonly property color hoverFill: Qt.rgba(1, 1, 1, 0.06)
    readonly property color destructive: Kit.destructive
    readonly property color success: "#33d682"
    readonly property color caution: "#ffa033"

    /// Of what cannot be pressed now: it is still read.
    readonly property real disabledOpacity: 0.68

    /// Content is no wider than this on any screen, and a line of text no longer.
    readonly property real widestContent: 1120
    readonly property real longestLine: 640

    readonly property int hoverTime: 170
    readonly property int pressTime: 110
    readonly property int accentTime: 450

    /// Opaque, in the hue of a section: what sheets, menus and tips are drawn on.
    function panelTop(tint: color): color {
        return Qt.hsva(Math.max(tint.hsvHue, 0), 0.24, 0.135, 1)
    }
    function panelBottom(tint: color): color {
        return Qt.hsva(Math.max(tint.hsvHue, 0), 0.24, 0.085, 1)
    }

    /// A colour as a word can be written in it, also on a tint of its own.
    function ink(tint: color): color {
        return Qt.tint(tint, Qt.rgba(1, 1, 1, 0.34))
    }

    /// What lies behind a white symbol on a section's disc.
    function discCore(shades: sectionPalette): color {
        return Qt.tint(shades.primary, withOpacity(shades.deep, 0.76))
    }

    /// Beside a page that is so wide: content is centred where there is more room than it takes.
    function pageMargin(pageWidth: real): real {
        return Math.max(34, Math.round((pageWidth - widestContent) / 2))
    }

    /// How far down the middle of a tool's ring stands in a view of this height, whatever is below it.
    function ringCentre(height: real): real {
        return Math.round(height * 0.36)
    }

    /// Near-black of a colour's hue: what is legible on a fill of that colour.
    function textOn(fill: color): color {
        return Qt.hsva(Math.max(fill.hsvHue, 0), 0.82, 0.10, 1)
    }

    function withOpacity(tint: color, opacity: real): color {
        return Qt.rgba(tint.r, tint.g, tint.b, opacity)
    }
}
