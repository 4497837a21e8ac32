import QtQuick
import Tidewell

/// The line between the two panes of a page.
Rectangle {
    anchors.bottomMargin: Theme.gap
    width: 1
    color: Theme.hairline
    Accessible.ignored: true
}
