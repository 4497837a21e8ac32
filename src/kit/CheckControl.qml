import QtQuick
import Tidewell

/// A check box's box. Whoever holds it takes the click.
Rectangle {
    id: root

    enum Mark { Off, On, Mixed }

    property int mark: CheckControl.Off
    property real lift: 0

    readonly property bool isFilled: mark !== CheckControl.Off
    readonly property color accent: Ambient.palette.primary

    implicitWidth: 19
    implicitHeight: 19
    radius: Theme.radiusTag
    color: isFilled ? accent : Theme.hover(0.5 + lift)
    border.width: isFilled ? 1 : 1.5
    border.color: isFilled ? Ambient.palette.soft : Theme.outline(0.4 + lift)
    Accessible.ignored: true

    Symbol {
        anchors.centerIn: parent
        visible: root.isFilled
        symbol: root.mark === CheckControl.Mixed ? "minus" : "checkmark"
        size: Theme.symbolSmall
        tint: Theme.textOn(root.accent)
    }
}
