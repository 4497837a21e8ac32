import QtQuick
import Tidewell

/// The share of the memory that is in use.
GlowCard {
    id: root

    required property PerformanceScreen screen

    padding: 26
    vivid: true
    featured: true
    cornerRadius: Theme.radiusPanel
    implicitHeight: 178

    DotGauge {
        id: gauge
        anchors.verticalCenter: parent.verticalCenter
        diameter: 142
        used: root.screen.memoryFraction

        Symbol {
            anchors.centerIn: parent
            symbol: "speedometer"
            size: 34
            tint: Ambient.palette.soft
        }
    }
    Column {
        anchors.left: gauge.right
        anchors.leftMargin: 34
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapTight

        Row {
            spacing: Theme.gapHair
            Accessible.role: Accessible.StaticText
            Accessible.name: root.screen.memoryPercent + "% in use"
            Accessible.description: root.screen.memoryLine

            FigureText {
                id: figure
                text: root.screen.memoryPercent
                size: Theme.sizeFigure
                weight: Font.Bold
                Accessible.ignored: true
            }
            Label {
                y: figure.ascent - baselineOffset
                text: "% in use"
                size: Theme.sizeUnit
                weight: Font.DemiBold
                color: Theme.withOpacity(Theme.text, 0.62)
                Accessible.ignored: true
            }
        }
        Label {
            text: root.screen.memoryLine
            size: Theme.sizeRow
            weight: Font.Medium
            Accessible.ignored: true
        }
        Label {
            width: Math.min(Theme.longestLine, parent.width)
            topPadding: 8
            text: root.screen.memoryFootnote
            size: Theme.sizeNote
            lineHeight: 1.2
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }
}
