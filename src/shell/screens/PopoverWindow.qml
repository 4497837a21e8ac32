import QtQuick
import Tidewell

/// The status item's popover as a window of its own.
Window {
    id: root

    required property MenuBarScreen screen

    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    width: view.implicitWidth
    height: view.implicitHeight
    title: root.screen.title
    color: "transparent"

    MenuBarView {
        id: view

        property bool isShown: false

        anchors.fill: parent
        screen: root.screen
        opacity: isShown ? 1 : 0
        Component.onCompleted: isShown = true

        Behavior on opacity {
            enabled: view.Motion.hasPassages
            NumberAnimation { duration: 120 }
        }
    }
}
