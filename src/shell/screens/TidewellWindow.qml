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

    ContentView {
        id: content
        anchors.fill: parent
        screen: root.windowScreen
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
