import QtQuick
import QtQuick.Templates as T
import Tidewell

/// What all buttons have in common: Space and Enter press it, the keyboard's place is seen, and
/// `lift` goes from 0 to 1 while the pointer is over it.
T.AbstractButton {
    id: root

    /// Said by assistive tools after the name.
    property string description
    property real cornerRadius: height / 2
    property real lift: hovered && !pressed ? 1 : 0
    property real pressedScale: 0.97
    property real focusGap: 4

    focusPolicy: Qt.StrongFocus
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    // Not where all around it takes no press for a while.
    opacity: enabled || parent?.enabled === false ? 1 : Theme.disabledOpacity
    scale: pressed ? pressedScale : 1

    Accessible.name: text
    Accessible.description: description
    Accessible.onPressAction: if (enabled) clicked()

    Keys.onPressed: event => {
        const isEnter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
        event.accepted = isEnter
        if (isEnter && !event.isAutoRepeat)
            clicked()
    }

    Behavior on lift {
        enabled: root.Motion.hasPassages
        NumberAnimation { duration: Theme.hoverTime }
    }
    Behavior on scale {
        enabled: root.Motion.hasPassages
        NumberAnimation { duration: Theme.pressTime; easing.type: Easing.OutCubic }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }

    FocusRing {
        visible: root.visualFocus
        cornerRadius: root.cornerRadius
        gap: root.focusGap
        z: 1
    }
}
