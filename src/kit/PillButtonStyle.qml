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
    fillTop: Theme.raisedTop(tint, lift)
    fillBottom: Theme.raisedBottom(tint, lift)
    rim: Theme.raisedRim
    shade: 0.3
}
