import QtQuick
import Tidewell

/// An application's icon, or a plain tile for one without. It is loaded beside the main thread.
Item {
    id: root

    property string source
    property real size: 40

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    IconChip {
        anchors.fill: parent
        visible: !picture.isIcon
        symbol: "app.fill"
        size: root.size
    }
    Image {
        id: picture

        // One pixel stands for none.
        readonly property bool isIcon: status === Image.Ready && implicitWidth > 1

        anchors.fill: parent
        visible: isIcon
        source: root.source
        sourceSize.width: root.size * Screen.devicePixelRatio
        sourceSize.height: root.size * Screen.devicePixelRatio
        fillMode: Image.PreserveAspectFit
        asynchronous: true
        smooth: true
    }
}
