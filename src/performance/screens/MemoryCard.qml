import QtQuick
import Tidewell

/// The share of the memory that is in use.
GlowCard {
    id: root

    required property PerformanceScreen screen

    padding: 26
    vivid: true
    featured: true
    cornerRadius: 24
    implicitHeight: 178

    DotGauge {
        id: gauge
        anchors.verticalCenter: parent.verticalCenter
        diameter: 142
        used: root.screen.memoryFraction

        Symbol {
            anchors.centerIn: parent
            symbol: root.screen.symbol
            size: 34
            tint: Ambient.palette.soft
        }
    }
    Column {
        anchors.left: gauge.right
        anchors.leftMargin: 34
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        Row {
            spacing: 1
            Accessible.role: Accessible.StaticText
            Accessible.name: root.screen.memoryPercent + root.screen.memoryUnit
            Accessible.description: root.screen.memoryLine

            FigureText {
                id: figure
                text: root.screen.memoryPercent
                size: 50
                weight: Font.Bold
                Accessible.ignored: true
            }
            Label {
                y: figure.ascent - baselineOffset
                text: root.screen.memoryUnit
                size: 18
                weight: Font.DemiBold
                color: Theme.withOpacity(Theme.text, 0.62)
                Accessible.ignored: true
            }
        }
        Label {
            text: root.screen.memoryLine
            size: 14
            weight: Font.Medium
            Accessible.ignored: true
        }
        Label {
            width: Math.min(Theme.longestLine, parent.width)
            topPadding: 8
            text: root.screen.memoryFootnote
            size: 12
            lineHeight: 1.2
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }
}
