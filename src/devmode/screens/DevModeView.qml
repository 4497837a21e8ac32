pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// Dev Mode: what development leaves behind and can make again.
FocusScope {
    id: root

    required property DevModeScreen screen

    readonly property bool isReview: screen.phase === DevModeScreen.Review
    readonly property bool isCleaning: screen.phase === DevModeScreen.Cleaning
    readonly property bool isDone: screen.phase === DevModeScreen.Done

    Component.onCompleted: screen.open()

    ToolPage {
        id: page
        anchors.fill: parent
        visible: !root.isDone
        focus: visible
        phase: root.isReview ? root.screen.isEmpty ? ToolPage.Nothing : ToolPage.Found
             : root.screen.phase === DevModeScreen.Idle ? ToolPage.Start : ToolPage.Scanning
        isListFirst: true
        hasHeader: root.isReview
        symbol: root.isReview ? "checkmark.seal.fill" : "hammer.fill"
        title: root.screen.headline
        subtitle: "Only what your tools rebuild on their own. Your work is never touched."
        startTitle: "Dev tools and AI apps quietly hoard tens of gigabytes."
        startLine: "Every build, install and prompt leaves artifacts behind. Tidewell clears only what "
                   + "your tools can rebuild on their own."
        startSymbol: "hammer.fill"
        startLabel: "Scan Dev & AI"
        onStarted: root.screen.scan()
        scanningTitle: root.isCleaning ? "Cleaning…" : root.screen.scanningLine
        progress: root.isCleaning ? root.screen.cleanProgress : root.screen.scanProgress
        nothingTitle: root.screen.emptyTitle
        note: root.screen.leftOutNote
        nothingLine: root.screen.emptyLine

        actions: [
            SmallButton {
                visible: !root.screen.isEmpty
                text: "Safe only"
                onClicked: root.screen.selectSafeOnly()
            },
            SmallButton {
                visible: !root.screen.isEmpty
                text: "All"
                onClicked: root.screen.selectAll()
            },
            SmallButton {
                visible: !root.screen.isEmpty
                text: "None"
                onClicked: root.screen.selectNone()
            },
            SmallButton {
                focus: root.isReview && root.screen.isEmpty
                text: "Rescan"
                onClicked: root.screen.scan()
            }
        ]

        DevModeReview {
            screen: root.screen
            margin: page.margin
        }
    }

    StartNote {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -8
        visible: root.isDone
        focus: visible
        symbol: "checkmark.seal.fill"
        title: root.screen.doneTitle
        buttonLabel: "Done"
        onStarted: root.screen.finish()
        between: FailureNote {
            width: 440
            visible: text !== ""
            title: root.screen.failureTitle
            text: root.screen.failureNote
        }
    }
}
