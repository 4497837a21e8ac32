import QtQuick
import Tidewell

/// A component with its state's name below.
Column {
    id: specimen

    default property alias content: place.data
    property string name
    property real placeWidth: place.childrenRect.width
    property real placeHeight: place.childrenRect.height

    spacing: 20

    Item {
        id: place
        width: specimen.placeWidth
        height: specimen.placeHeight
    }
    Label {
        text: specimen.name
        size: 11
        color: Theme.faint
    }
}
