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

    // The last of each: a tool that is ready has none, and they are in sight while this goes.
    property string lastSymbol
    property string lastTitle
    property string lastLine

    function keep() {
        if (title === "" || symbol === "")
            return
        lastSymbol = symbol
        lastTitle = title
        lastLine = line
    }
    onSymbolChanged: keep()
    onTitleChanged: keep()
    onLineChanged: keep()

    spacing: 0

    GlossyBlob {
        anchors.horizontalCenter: parent.horizontalCenter
        size: 92
        symbol: root.lastSymbol
    }
    Item { width: 1; height: 30 }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.lastTitle
        size: Theme.sizeHeading
        weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: text !== ""
        topPadding: 5
        text: root.lastLine
        size: Theme.sizeNote
        color: Theme.secondary
    }
    Item { width: 1; height: 22 }
    GradientBar {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.progress >= 0
        width: root.barWidth
        fraction: root.progress
        Accessible.name: root.lastTitle
    }
    Spinner {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.progress < 0
        diameter: 22
    }
}
