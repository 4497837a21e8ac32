import QtQuick
import Tidewell

/// The secondary button of a screen.
Pressable {
    id: root

    property string symbol
    property bool isSymbolLast: false
    property color textColor: Theme.quiet(lift)
    property real fontSize: Theme.sizeText

    horizontalPadding: 18
    verticalPadding: 9

    background: GhostPillButtonStyle { lift: root.lift }
    contentItem: SymbolLabel {
        symbol: root.symbol
        text: root.text
        tint: root.textColor
        size: root.fontSize
        weight: Font.Medium
        isSymbolLast: root.isSymbolLast
    }
}
