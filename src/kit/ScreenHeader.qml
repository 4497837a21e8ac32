import QtQuick
import Tidewell

/// The title at the top of a screen, with a line below it.
Column {
    id: root

    property string title
    property string subtitle

    spacing: Theme.gapTight

    Label {
        width: root.width > 0 ? root.width : implicitWidth
        text: root.title
        size: Theme.sizeTitle
        weight: Font.Bold
        font.letterSpacing: -0.4
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Label {
        width: root.width > 0 ? root.width : implicitWidth
        visible: text !== ""
        text: root.subtitle
        size: Theme.sizeRow
        color: Theme.secondary
        elide: Text.ElideRight
    }
}
