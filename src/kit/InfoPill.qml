import QtQuick
import Tidewell

/// A small capsule with a fact: symbols and short texts side by side.
Rectangle {
    default property alias content: row.data

    implicitWidth: row.implicitWidth + 28
    implicitHeight: 32
    radius: height / 2
    color: Qt.rgba(1, 1, 1, 0.055)
    border.width: 1
    border.color: Qt.rgba(1, 1, 1, 0.08)

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 8
    }
}
