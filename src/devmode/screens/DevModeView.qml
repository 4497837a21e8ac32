import QtQuick
import Tidewell

/// Dev Mode: what development leaves behind and can make again.
FocusScope {
    id: root

    required property DevModeScreen screen

    Component.onCompleted: screen.open()

    StartNote {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -8
        visible: root.screen.phase === DevModeScreen.Idle
        focus: visible
        symbol: root.screen.symbol
        title: root.screen.startTitle
        line: root.screen.startLine
        buttonSymbol: root.screen.symbol
        buttonLabel: root.screen.scanLabel
        onStarted: root.screen.scan()
    }

    ScanningNote {
        anchors.centerIn: parent
        visible: root.screen.phase === DevModeScreen.Scanning
        symbol: root.screen.symbol
        title: root.screen.scanningLine
        progress: root.screen.scanProgress
    }

    DevModeReview {
        anchors.fill: parent
        visible: root.screen.phase === DevModeScreen.Review
        focus: visible
        screen: root.screen
    }

    ScanningNote {
        anchors.centerIn: parent
        visible: root.screen.phase === DevModeScreen.Cleaning
        symbol: root.screen.symbol
        title: root.screen.cleaningTitle
        progress: root.screen.cleanProgress
    }

    StartNote {
        id: done
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -8
        visible: root.screen.phase === DevModeScreen.Done
        focus: visible
        symbol: root.screen.doneSymbol
        title: root.screen.doneTitle
        buttonLabel: root.screen.doneLabel
        onStarted: root.screen.finish()
        between: FailureNote {
            width: 440
            visible: text !== ""
            symbol: root.screen.failureSymbol
            title: root.screen.failureTitle
            text: root.screen.failureNote
        }
    }
}
