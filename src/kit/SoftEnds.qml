pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// Lets the ends of a scrolled area fade where there is more beyond them.
Item {
    id: root

    required property Flickable area

    readonly property real reach: 26
    /// How far the content goes on above and below.
    readonly property real above: area.contentY - area.originY + area.topMargin
    readonly property real below: area.originY + area.contentHeight + area.bottomMargin
                                  - area.contentY - area.height

    parent: area
    width: area.width
    height: area.height
    z: 1
    Accessible.ignored: true

    component End: Rectangle {
        id: end

        property real beyond
        property bool isTop: false

        x: root.area.leftMargin
        width: root.width - root.area.leftMargin - root.area.rightMargin
        height: root.reach
        visible: beyond > 0
        opacity: Math.min(1, beyond / height)
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.withOpacity(Theme.base, end.isTop ? 0.86 : 0) }
            GradientStop { position: 0.5; color: Theme.withOpacity(Theme.base, 0.36) }
            GradientStop { position: 1; color: Theme.withOpacity(Theme.base, end.isTop ? 0 : 0.86) }
        }
    }

    End {
        isTop: true
        beyond: root.above
    }
    End {
        anchors.bottom: parent.bottom
        beyond: root.below
    }
}
