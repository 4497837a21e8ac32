import QtQuick
import Tidewell

/// A tool with its latest result; pressing it opens the tool.
Pressable {
    id: root

    property string symbol
    property string lines
    property string value

    /// With its result below its words, for both do not fit side by side.
    readonly property bool isNarrow: width < 300

    implicitHeight: isNarrow ? 140 : 108
    padding: 20
    cornerRadius: Theme.radiusCard
    pressedScale: 0.985
    description: lines.replace("\n", " ") + ". " + value

    background: GlowCard {
        cornerRadius: root.cornerRadius
        lift: root.lift
    }
    contentItem: Item {
        GlossyBlob {
            id: blob
            anchors.verticalCenter: parent.verticalCenter
            anchors.verticalCenterOffset: root.isNarrow ? -16 : 0
            size: 50
            symbol: root.symbol
            lift: root.lift
        }
        Column {
            anchors.left: blob.right
            anchors.leftMargin: Theme.gapWide
            anchors.verticalCenter: blob.verticalCenter
            spacing: Theme.gapTight

            Label {
                text: root.text
                size: Theme.sizeCard
                weight: Font.DemiBold
                Accessible.ignored: true
            }
            Label {
                text: root.lines
                size: Theme.sizeNote
                lineHeight: 1.15
                color: Theme.secondary
                Accessible.ignored: true
            }
        }
        Row {
            anchors.right: parent.right
            anchors.rightMargin: -4
            anchors.bottom: parent.bottom
            anchors.bottomMargin: -4
            spacing: Theme.gapTight

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.value
                size: Theme.sizeControl
                weight: Font.DemiBold
                color: Ambient.palette.soft
                Accessible.ignored: true
            }
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "chevron.right"
                size: Theme.symbolSmall
                tint: Ambient.palette.soft
            }
        }
    }
}
