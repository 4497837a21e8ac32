import QtQuick
import Tidewell

/// What the tool is for, and the button to begin.
FocusScope {
    id: root

    required property PerformanceScreen screen

    StartNote {
        anchors.centerIn: parent
        focus: true
        symbol: root.screen.symbol
        line: root.screen.startLine
        buttonLabel: root.screen.startLabel
        onStarted: root.screen.scan()
    }
}
