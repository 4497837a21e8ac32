import QtQuick
import Tidewell

/// The flat box that rows, notes and small cards are drawn on: a breath of its tint, lit from above,
/// with a fine edge. What is to glow or to stand out is a GlowBox.
Rectangle {
    id: root

    /// In a colour the edge is seen; in that of the text it is only guessed.
    property color tint: Theme.text
    property real strength: 1
    /// From 0 to 1 while the pointer is over it.
    property real lift: hover.hovered ? 1 : 0
    /// Whether it follows the pointer by itself.
    property bool reacts: false

    property color fillTop: Theme.withOpacity(tint, strength * (0.060 + 0.030 * lift))
    property color fillBottom: Theme.withOpacity(tint, strength * (0.036 + 0.020 * lift))

    radius: Theme.radius
    border.width: 1
    border.color: Theme.withOpacity(tint, tint.hsvSaturation > 0.1 ? 0.24 + 0.20 * lift
                                                                  : strength * (0.07 + 0.09 * lift))
    gradient: Gradient {
        GradientStop { position: 0; color: root.fillTop }
        GradientStop { position: 1; color: root.fillBottom }
    }

    Behavior on lift {
        enabled: root.reacts && root.Motion.hasPassages
        NumberAnimation { duration: Theme.hoverTime }
    }

    HoverHandler {
        id: hover
        enabled: root.reacts
    }
}
