import QtQuick
import Tidewell

/// A faint grain over what lies below.
Image {
    source: NoiseTile.source
    fillMode: Image.Tile
    opacity: 0.025
    Accessible.ignored: true
}
