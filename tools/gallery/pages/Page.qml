import QtQuick
import Tidewell

/// A page of specimens on the window's canvas.
AmbientBackground {
    id: page

    default property alias content: inside.data
    property real margin: 48

    width: inside.childrenRect.width + 2 * margin
    height: inside.childrenRect.height + 2 * margin

    Item {
        id: inside
        anchors.fill: parent
        anchors.margins: page.margin
    }
}
