import QtQuick
import Tidewell

/// What stands on a page while its tool looks: a symbol, a title, a line, and how far it is, or a
/// spinner where that is not known.
Column {
    id: root

    property string symbol
    property string title
    property string line
    /// Below 0 if it is not known.
    property double progress: -1
    property real barWidth: 260

    spacing: 0

    GlossyBlob {
        anchors.horizontalCenter: parent.horizontalCenter
        size: 92
        symbol: root.symbol
    }
    Item { width: 1; height: 30 }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.title
        size: Theme.sizeHeading
        weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: text !== ""
        topPadding: 5
        text: root.line
        size: Theme.sizeNote
        color: Theme.secondary
    }
    Item { width: 1; height: 22 }
    GradientBar {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.progress >= 0
        width: root.barWidth
        fraction: root.progress
        Accessible.name: root.title
    }
    Spinner {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.progress < 0
        diameter: 22
    }
}
