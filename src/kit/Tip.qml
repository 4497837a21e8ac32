import QtQuick
import QtQuick.Templates as T
import Tidewell

/// What a control does, in a small box above it while the pointer rests on it.
T.ToolTip {
    id: root

    x: Math.round(((parent ? parent.width : 0) - width) / 2)
    y: -height - 8
    delay: 600
    margins: 8
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 12
    verticalPadding: 8
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: Label {
        text: root.text
        size: Theme.sizeNote
    }
    background: Rectangle {
        radius: Theme.radiusSmall
        color: Theme.panelTop(root.parent ? root.parent.Ambient.palette.primary : Theme.base)
        border.width: 1
        border.color: Theme.panelRim
    }
}
