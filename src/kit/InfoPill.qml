import QtQuick
import Tidewell

/// A small capsule with a fact: symbols and short texts side by side.
Surface {
    default property alias content: row.data

    implicitWidth: row.implicitWidth + 28
    implicitHeight: 32
    radius: height / 2

    Row {
        id: row
        anchors.centerIn: parent
        spacing: Theme.gapSmall
    }
}
