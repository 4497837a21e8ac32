import QtQuick
import Tidewell

/// While the machine is looked at.
Item {
    id: root

    required property PerformanceScreen screen

    ScanningNote {
        anchors.centerIn: parent
        symbol: root.screen.symbol
        title: root.screen.scanningLine
    }
}
