pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// What uses memory, and what starts by itself.
FocusScope {
    id: root

    required property PerformanceScreen screen

    readonly property bool isList: screen.phase === PerformanceScreen.List

    Component.onCompleted: screen.open()

    ToolPage {
        id: page
        anchors.fill: parent
        focus: true
        phase: root.isList ? ToolPage.Found
             : root.screen.phase === PerformanceScreen.Scanning ? ToolPage.Scanning : ToolPage.Start
        symbol: "speedometer"
        title: "Performance"
        subtitle: root.screen.subtitle
        startLine: "See what's using memory and what starts at login."
        startLabel: "Check Performance"
        onStarted: root.screen.scan()
        scanningTitle: "Checking what's running…"

        actions: [
            SegmentedPicker {
                visible: root.isList
                model: root.screen.panels
                onChosen: row => root.screen.choosePanel(row)
            },
            SmallButton {
                id: rescan
                anchors.verticalCenter: parent?.verticalCenter
                visible: root.isList
                focus: visible
                text: "Rescan"
                onClicked: root.screen.scan()
            }
        ]

        Item {
            MemoryPanel {
                anchors.fill: parent
                opacity: root.screen.showsMemory ? 1 : 0
                visible: opacity > 0
                screen: root.screen
                margin: page.margin
                onDeserted: reason => rescan.forceActiveFocus(reason)

                Fade on opacity {}
            }
            StartupPanel {
                anchors.fill: parent
                opacity: root.screen.showsMemory ? 0 : 1
                visible: opacity > 0
                screen: root.screen
                margin: page.margin

                Fade on opacity {}
            }
        }
    }
}
