import QtQuick
import Tidewell

/// The primary button of a screen.
Pressable {
    id: root

    property string symbol
    property bool isSymbolLast: false
    property color tint: Ambient.palette.primary
    property color textColor: Theme.textOn(tint)
    property real fontSize: Theme.sizeRow

    horizontalPadding: 22
    verticalPadding: 11

    background: PillButtonStyle {
        tint: root.tint
        lift: root.lift
    }
    contentItem: SymbolLabel {
        symbol: root.symbol
        text: root.text
        tint: root.textColor
        size: root.fontSize
        isSymbolLast: root.isSymbolLast
    }
}
