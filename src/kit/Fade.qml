import QtQuick
import Tidewell

/// Has a share come and go softly, as views do: `opacity: isThere ? 1 : 0; Fade on opacity {}`.
Behavior {
    id: root

    enabled: (targetProperty.object as Item)?.Motion.hasPassages ?? false

    NumberAnimation {
        duration: root.targetValue > 0 ? Theme.comeTime : Theme.goTime
        easing.type: Easing.OutCubic
    }
}
