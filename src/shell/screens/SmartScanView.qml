pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// One scan over four tools: the ring says how far it is, the cards what each tool found.
FocusScope {
    id: root

    required property SmartScanScreen screen

    readonly property bool isRunning: screen.isRunning
    readonly property bool hasNextStep: screen.primaryLabel !== ""

    onIsRunningChanged: takeKeyboard()
    onHasNextStepChanged: takeKeyboard()  // a short scan is over before it was seen to run
    Component.onCompleted: takeKeyboard()

    /// The keyboard is at what most people do next.
    function takeKeyboard() {
        if (isRunning)
            stopButton.focus = true
        else if (hasNextStep)
            primaryButton.focus = true
        else
            backButton.focus = true
    }

    ScrollArea {
        anchors.fill: parent
        contentHeight: Math.max(height, column.height + 2 * column.margin)

        Column {
            id: column

            readonly property real margin: Math.max(8, Math.min(24, (root.height - height) / 2))

            anchors.horizontalCenter: parent.horizontalCenter
            y: Math.max(margin, (parent.height - height) / 2)
            width: Math.min(parent.width - 60, 700)
            spacing: 0

            SegmentedScanRing {
                anchors.horizontalCenter: parent.horizontalCenter
                segments: root.screen.segments
                Accessible.role: Accessible.ProgressBar
                Accessible.name: root.screen.title
                Accessible.description: root.screen.centreFigure + " " + root.screen.centreCaption

                Column {
                    anchors.centerIn: parent
                    spacing: Theme.gapTight

                    Symbol {
                        anchors.horizontalCenter: parent.horizontalCenter
                        visible: symbol !== ""
                        symbol: root.screen.centreSymbol
                        size: root.isRunning ? Theme.symbolRow : 34
                        tint: root.Ambient.palette.soft
                    }
                    FigureText {
                        anchors.horizontalCenter: parent.horizontalCenter
                        visible: text !== ""
                        text: root.screen.centreFigure
                        moves: root.isRunning
                        size: Theme.sizeRing
                        weight: Font.Bold
                        Accessible.ignored: true
                    }
                    Label {
                        anchors.horizontalCenter: parent.horizontalCenter
                        visible: text !== ""
                        text: root.screen.centreCaption
                        size: Theme.sizeText
                        color: Theme.secondary
                        Accessible.ignored: true
                    }
                }
            }

            Item { width: 1; height: 22 }

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.screen.title
                size: Theme.sizePlacard
                weight: Font.Bold
                font.letterSpacing: -0.3
                Accessible.role: Accessible.Heading
            }

            Item { width: 1; height: 4 }

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, parent.width)
                height: 17
                text: root.screen.line
                size: root.isRunning ? Theme.sizeTag : Theme.sizeControl
                color: Theme.secondary
                elide: Text.ElideMiddle
            }

            Item { width: 1; height: 22 }

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: Theme.gap

                Repeater {
                    model: root.screen.cards

                    ToolCard {
                        required property int index
                        required symbol
                        required property string title
                        required property sectionPalette accent
                        required line
                        required mark
                        required hoverMark
                        required dimming
                        required isActive
                        required isDone
                        required opens

                        text: title
                        Ambient.palette: accent
                        onClicked: root.screen.openCard(index)
                    }
                }
            }

            Item { width: 1; height: 18 }

            // As high as it can get, so that nothing moves when a scan has ended.
            Column {
                id: insights
                anchors.horizontalCenter: parent.horizontalCenter
                width: parent.width
                height: 3 * 22 + 2 * spacing
                spacing: Theme.gapSmall

                Repeater {
                    model: root.screen.insights

                    InsightLine {
                        required property int index
                        required symbol
                        required text
                        required property sectionPalette accent

                        // A row that goes has no parent any more.
                        anchors.horizontalCenter: insights.horizontalCenter
                        width: Math.min(insights.width, 440)
                        order: index
                        Ambient.palette: accent
                    }
                }
            }

            Item { width: 1; height: 18 }

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                height: 44
                spacing: Theme.gap

                GhostPillButton {
                    id: stopButton
                    anchors.verticalCenter: parent.verticalCenter
                    visible: root.isRunning
                    text: "Stop"
                    onClicked: root.screen.stop()
                }
                GhostPillButton {
                    id: backButton
                    anchors.verticalCenter: parent.verticalCenter
                    visible: !root.isRunning
                    symbol: "chevron.left"
                    horizontalPadding: 13
                    Accessible.name: "Back"
                    onClicked: root.screen.back()
                }
                PillButton {
                    id: primaryButton
                    anchors.verticalCenter: parent.verticalCenter
                    visible: root.hasNextStep
                    text: root.screen.primaryLabel
                    symbol: "arrow.right"
                    isSymbolLast: true
                    onClicked: root.screen.openPrimary()
                }
            }
        }
    }
}
