import QtQuick
import Tidewell

/// The look of the primary button: a capsule filled with the tint, in a glow of it that grows while
/// the pointer is over it.
GlowBox {
    property color tint: Ambient.palette.primary
    property real lift: 0

    cornerRadius: height / 2
    reach: 26
    glow: Theme.withOpacity(tint, 0.26 + 0.22 * lift)
    fillTop: Qt.tint(tint, Qt.rgba(1, 1, 1, 0.18 + 0.10 * lift))
    fillBottom: Qt.tint(tint, Qt.rgba(0, 0, 0, 0.10 - 0.04 * lift))
    rim: Qt.rgba(1, 1, 1, 0.24)
    shade: 0.3
}
