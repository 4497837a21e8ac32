import QtQuick
import Tidewell

/// A disc of small dots, of which a share is lit, with room for content in the middle.
Item {
    id: root

    default property alias center: middle.data
    property real used: 0
    property real diameter: 190
    property sectionPalette sectionPalette: Ambient.palette

    readonly property real lit: Math.min(Math.max(used, 0.001), 1)
    readonly property real innerRadius: diameter * 0.29

    implicitWidth: diameter
    implicitHeight: diameter
    Accessible.ignored: true

    DotTexture {
        anchors.centerIn: parent
        diameter: root.diameter
        innerRadius: root.innerRadius
        lit: root.lit
        sectionPalette: root.sectionPalette
        visible: root.GraphicsInfo.api !== GraphicsInfo.Software
    }

    RingArc {
        anchors.centerIn: parent
        visible: root.GraphicsInfo.api === GraphicsInfo.Software
        diameter: root.diameter
        lineWidth: root.diameter / 2 - root.innerRadius
        fill: root.lit
    }

    Item {
        id: middle
        anchors.centerIn: parent
        width: 2 * root.innerRadius
        height: width
    }
}
