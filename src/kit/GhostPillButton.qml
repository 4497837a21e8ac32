import QtQuick
import Tidewell

/// The secondary button of a screen.
Pressable {
    id: root

    property string symbol
    property bool isSymbolLast: false
    property color textColor: Theme.withOpacity(Theme.text, 0.78 + 0.22 * lift)
    property real fontSize: 13

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
