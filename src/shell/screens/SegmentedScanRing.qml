pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// A ring in as many parts as there are segments, each in its own colour and filled as far as its
/// part of the work is done. A part at work whose end is not known pulses.
Item {
    id: root

    default property alias center: middle.data
    property var segments: []
    property real diameter: 250
    property real lineWidth: 13

    /// Shares of the circle.
    readonly property real part: 0.25
    readonly property real gap: 0.025

    implicitWidth: diameter
    implicitHeight: diameter

    component PartOfRing: RingArc {
        property color tint

        diameter: root.diameter
        lineWidth: root.lineWidth
        span: root.part - root.gap
        deep: tint
        primary: tint
        soft: tint
        glow: 0.45
    }

    Repeater {
        model: root.segments

        Item {
            id: segment

            required property int index
            required property sectionPalette accent
            required property double fill
            required property bool warming

            readonly property real start: root.part * index + root.gap / 2

            anchors.fill: parent

            PartOfRing {
                anchors.fill: parent
                tint: segment.accent.primary
                start: segment.start
                fill: Math.min(segment.fill, 1)

                Behavior on fill {
                    enabled: root.Motion.hasPassages
                    NumberAnimation { duration: 350; easing.type: Easing.OutCubic }
                }
            }
            PartOfRing {
                id: pulse
                anchors.fill: parent
                visible: shown > 0
                tint: segment.accent.primary
                start: segment.start
                fill: 1
                track: 0
                opacity: 0.3 * strength * shown

                property real strength: 1
                property real shown: segment.warming ? 1 : 0

                Fade on shown {}

                SequentialAnimation {
                    running: pulse.visible && root.Motion.isAllowed
                    onRunningChanged: if (!running) pulse.strength = 1
                    loops: Animation.Infinite
                    NumberAnimation { target: pulse; property: "strength"; to: 0.27; duration: 700; easing.type: Easing.InOutSine }
                    NumberAnimation { target: pulse; property: "strength"; to: 1; duration: 700; easing.type: Easing.InOutSine }
                }
            }
        }
    }

    Item {
        id: middle
        anchors.centerIn: parent
        width: root.diameter - 2 * root.lineWidth
        height: width
    }
}
