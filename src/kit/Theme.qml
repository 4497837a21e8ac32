pragma Singleton
import QtQuick
import Tidewell

/// The colours and measures that all components share. Lengths are in points, times in milliseconds.
/// What stands on a page takes its sizes from here; a figure of its own is left to what has one place
/// in the whole program, such as a gauge.
QtObject {
    // Text, from the smallest, each size by what it is for. Fonts take whole points alone.
    readonly property int sizeTiny: 10      // an identifier below a name
    readonly property int sizeTag: 10       // a word in a box
    readonly property int sizeMinor: 11     // marks and captions
    readonly property int sizeDetail: 11    // what is told of a row
    readonly property int sizeNote: 12      // notes, headings in small print
    readonly property int sizeControl: 12   // small buttons, pills, rows that are no list
    readonly property int sizeText: 13      // running text
    readonly property int sizeRow: 13       // the name of a row, a line below a title, a button
    readonly property int sizeCard: 15      // the name of a card
    readonly property int sizeHeading: 17   // of a part of a page
    readonly property int sizeUnit: 18      // of a large figure
    readonly property int sizePlacard: 20   // what stands alone on a page
    readonly property int sizeTotal: 23     // a sum
    readonly property int sizeTitle: 27     // of a page
    readonly property int sizeRing: 30      // a figure in a ring
    readonly property int sizeHero: 38      // the one thing that counts right now
    readonly property int sizeFigure: 54    // a page's one large figure

    // Symbols beside text.
    readonly property real symbolTiny: 12
    readonly property real symbolSmall: 14
    readonly property real symbolRow: 16
    readonly property real symbolLarge: 20

    // Between things, from those that are one to those that are apart.
    readonly property real gapHair: 2
    readonly property real gapTight: 4
    readonly property real gapSmall: 8
    readonly property real gap: 12
    readonly property real gapWide: 16
    readonly property real gapLarge: 20
    readonly property real gapHuge: 26

    readonly property real radiusTag: 6
    readonly property real radiusSmall: 9
    readonly property real radius: 14
    readonly property real radiusCard: 20
    readonly property real radiusPanel: 24

    readonly property color base: "#060909"
    readonly property color text: "#f3f6f4"
    readonly property color secondary: Kit.secondary
    readonly property color faint: Qt.rgba(1, 1, 1, 0.56)
    readonly property color track: Qt.rgba(1, 1, 1, 0.07)
    /// A line between things, and the edge of what hardly stands out.
    readonly property color hairline: Qt.rgba(1, 1, 1, 0.07)
    readonly property color panelRim: Qt.rgba(1, 1, 1, 0.13)
    readonly property color raisedRim: Qt.rgba(1, 1, 1, 0.22)
    /// Over a bar or a column that stands back, and over all that does not react for a while.
    readonly property color shade: Qt.rgba(0, 0, 0, 0.25)
    readonly property color scrim: Qt.rgba(0, 0, 0, 0.58)
    readonly property color hoverFill: Qt.rgba(1, 1, 1, 0.06)
    readonly property color destructive: Kit.destructive
    readonly property color success: "#33d682"
    readonly property color caution: "#ffa033"

    /// Of what cannot be pressed now: it is still read.
    readonly property real disabledOpacity: 0.68

    /// Content is no wider than this on any screen, and a line of text no longer.
    readonly property real widestContent: 1120
    readonly property real longestLine: 640

    /// What comes and what goes in its place.
    readonly property int comeTime: 180
    readonly property int goTime: 120
    readonly property int hoverTime: 170
    readonly property int pressTime: 110
    readonly property int accentTime: 450

    /// The outline of what can be pressed. `lift` goes from 0 to 1 while the pointer is over it, here
    /// and below.
    function outline(lift: real): color {
        return Qt.rgba(1, 1, 1, 0.22 + 0.18 * lift)
    }
    function hover(lift: real): color {
        return withOpacity(hoverFill, hoverFill.a * lift)
    }
    /// Words that can be pressed and are not in their button's colour.
    function quiet(lift: real): color {
        return withOpacity(text, 0.76 + 0.24 * lift)
    }

    // What stands out in a colour: lit from above.
    function raisedTop(tint: color, lift: real): color {
        return Qt.tint(tint, Qt.rgba(1, 1, 1, 0.14 + 0.10 * lift))
    }
    function raisedBottom(tint: color, lift: real): color {
        return Qt.tint(tint, Qt.rgba(0, 0, 0, 0.13 - 0.04 * lift))
    }

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
