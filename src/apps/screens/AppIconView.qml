import QtQuick
import Tidewell

/// An application's icon; a plain tile where there is none.
Item {
    id: root

    property real size: 40

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        anchors.margins: root.size * 0.05
        radius: root.size * 0.23
        border.width: 1
        border.color: Qt.rgba(1, 1, 1, 0.10)
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.rgba(1, 1, 1, 0.14) }
            GradientStop { position: 1; color: Qt.rgba(1, 1, 1, 0.06) }
        }

        Symbol {
            anchors.centerIn: parent
            symbol: "app.fill"
            size: Math.round(root.size * 0.46)
            tint: Theme.withOpacity(Theme.text, 0.55)
        }
    }
}
