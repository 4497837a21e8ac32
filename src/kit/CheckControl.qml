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
    radius: 6
    color: isFilled ? accent : Qt.rgba(1, 1, 1, 0.03 + 0.05 * lift)
    border.width: isFilled ? 1 : 1.5
    border.color: isFilled ? Ambient.palette.soft : Qt.rgba(1, 1, 1, 0.28 + 0.22 * lift)
    Accessible.ignored: true

    Symbol {
        anchors.centerIn: parent
        visible: root.isFilled
        symbol: root.mark === CheckControl.Mixed ? "minus" : "checkmark"
        size: 14
        tint: Theme.textOn(root.accent)
    }
}
