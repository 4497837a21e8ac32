pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The disk: what is free, how much is used, and what was won back so far.
GlowCard {
    id: root

    required property HomeScreen screen

    /// With room for more, the gauge is larger.
    readonly property bool isLarge: width > 1000

    Ambient.palette: screen.healthShades
    padding: 26
    vivid: true
    featured: true
    cornerRadius: Theme.radiusPanel
    implicitHeight: isLarge ? 276 : 236

    Label {
        id: caption
        text: "FREE RIGHT NOW"
        size: Theme.sizeMinor
        weight: Font.DemiBold
        font.letterSpacing: 1.5
        color: Theme.secondary
    }
    CountUpBytes {
        id: figure
        anchors.top: caption.bottom
        anchors.topMargin: Theme.gapHair
        anchors.left: parent.left
        anchors.leftMargin: -2
        target: root.screen.freeBytes
        size: Theme.sizeFigure
    }
    Label {
        id: health
        anchors.top: figure.bottom
        anchors.topMargin: Theme.gapHair
        text: root.screen.healthMessage
        size: Theme.sizeControl
        weight: Font.Medium
        color: Ambient.palette.soft
    }
    Row {
        anchors.top: health.bottom
        anchors.topMargin: Theme.gapTight
        spacing: Theme.gapSmall

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "arrow.up.right.circle.fill"
            size: Theme.symbolRow
            tint: Theme.success
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.screen.winnings
            size: Theme.sizeControl
            color: Theme.secondary
        }
    }
    Row {
        anchors.bottom: parent.bottom
        spacing: 34

        Repeater {
            model: root.screen.stats

            Column {
                id: cell

                required property string label
                required property string value

                spacing: Theme.gapHair
                Accessible.role: Accessible.StaticText
                Accessible.name: label
                Accessible.description: value

                Label {
                    text: cell.label
                    size: Theme.sizeDetail
                    color: Theme.faint
                    Accessible.ignored: true
                }
                FigureText {
                    text: cell.value
                    size: Theme.sizeCard
                    weight: Font.DemiBold
                    Accessible.ignored: true
                }
            }
        }
    }

    DotGauge {
        anchors.right: parent.right
        anchors.rightMargin: Theme.gapTight
        anchors.verticalCenter: parent.verticalCenter
        diameter: root.isLarge ? 224 : 190
        used: root.screen.usedFraction
        Accessible.ignored: false
        Accessible.role: Accessible.ProgressBar
        Accessible.name: "used"
        Accessible.description: root.screen.usedPercent

        Column {
            anchors.centerIn: parent
            spacing: -2

            FigureText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.screen.usedPercent
                size: Theme.sizeRing
                weight: Font.Bold
                isRounded: true
                Accessible.ignored: true
            }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "used"
                size: Theme.sizeNote
                color: Theme.secondary
                Accessible.ignored: true
            }
        }
    }
}
