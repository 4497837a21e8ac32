import QtQuick
import QtQuick.Templates as T
import Tidewell

/// What a control does, in a small box above it while the pointer rests on it.
T.ToolTip {
    id: root

    /// What more there is to say, below it.
    property string line

    x: Math.round(((parent ? parent.width : 0) - width) / 2)
    y: -height - 8
    delay: 600
    margins: 8
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 12
    verticalPadding: 8
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: Column {
        spacing: Theme.gapHair

        Label {
            text: root.text
            size: Theme.sizeNote
            weight: root.line === "" ? Font.Normal : Font.DemiBold
        }
        Label {
            width: Math.min(implicitWidth, 300)
            visible: root.line !== ""
            text: root.line
            size: Theme.sizeNote
            color: Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: Theme.radiusSmall
        color: Theme.panelTop(root.parent ? root.parent.Ambient.palette.primary : Theme.base)
        border.width: 1
        border.color: Theme.panelRim
    }
}
