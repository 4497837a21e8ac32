import QtQuick
import Tidewell

/// What was found, a panel at a time.
FocusScope {
    id: root

    required property PerformanceScreen screen
    required property real margin

    /// Low enough for the header, and above the panels' first lines, for their glows reach out.
    readonly property real panelTop: 84

    Row {
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        y: 35
        spacing: Theme.gap

        SegmentedPicker {
            model: root.screen.panels
            onChosen: row => root.screen.choosePanel(row)
        }
        SmallButton {
            id: rescan
            anchors.verticalCenter: parent.verticalCenter
            focus: true
            text: root.screen.rescanLabel
            onClicked: root.screen.scan()
        }
    }

    MemoryPanel {
        anchors.fill: parent
        anchors.topMargin: root.panelTop
        visible: root.screen.showsMemory
        screen: root.screen
        margin: root.margin
        onDeserted: reason => rescan.forceActiveFocus(reason)
    }
    StartupPanel {
        anchors.fill: parent
        anchors.topMargin: root.panelTop
        visible: !root.screen.showsMemory
        screen: root.screen
        margin: root.margin
    }
}
