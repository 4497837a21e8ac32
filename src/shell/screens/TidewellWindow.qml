pragma ComponentBehavior: Bound
import QtQml.Models
import QtQuick
import Tidewell

/// The program's one window.
Window {
    id: root

    required property WindowScreen windowScreen

    width: 1120
    height: 740
    minimumWidth: 1060
    minimumHeight: 680
    title: "Tidewell"
    color: Theme.base
    flags: hasOwnFrame ? Qt.Window | Qt.FramelessWindowHint : Qt.Window

    /// Where the desktop lets a window move itself. Whether an X11 one does, it says when it is asked to.
    property bool hasOwnFrame: Qt.platform.pluginName === "xcb"
                               || Qt.platform.pluginName.startsWith("wayland")

    ContentView {
        id: content
        anchors.fill: parent
        screen: root.windowScreen
    }

    WindowFrame {
        anchors.fill: parent
        z: 1e7  // above the sheets too, or the window could not be moved while there is one
        visible: root.hasOwnFrame
        window: root
        onFailed: root.hasOwnFrame = false
    }

    Shortcut {
        sequences: [StandardKey.Quit] // qmllint disable unqualified
        context: Qt.ApplicationShortcut
        onActivated: Qt.quit()
    }
    Shortcut {
        sequences: [StandardKey.Close] // qmllint disable unqualified
        onActivated: root.close()
    }
    Instantiator {
        model: 7

        Shortcut {
            required property int index
            enabled: root.windowScreen.hasOnboarded
            sequence: "Ctrl+" + (index + 1)
            onActivated: {
                root.windowScreen.openRow(index)
                content.enterDetail()
            }
        }
    }
}
