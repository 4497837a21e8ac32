import QtQuick
import Tidewell

/// Under a list, in few words, what a scan had to pass over. Takes no room without a text; with one it
/// lies below the last row, which can be scrolled clear of it.
Item {
    id: root

    property string text

    implicitHeight: text === "" ? 0 : words.implicitHeight + Theme.gapWide
    visible: text !== ""

    Symbol {
        id: icon
        anchors.verticalCenter: parent.verticalCenter
        symbol: "info.circle"
        size: Theme.symbolSmall
        tint: Theme.faint
    }
    Label {
        id: words
        anchors.left: icon.right
        anchors.leftMargin: Theme.gapSmall
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        size: Theme.sizeDetail
        color: Theme.faint
        maximumLineCount: 2
        wrapMode: Text.Wrap
        elide: Text.ElideRight
    }
}
