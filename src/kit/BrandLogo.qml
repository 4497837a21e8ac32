import QtQuick
import Tidewell

/// The program's logo; its name, where the picture is missing.
Item {
    id: root

    enum BrandAsset { Wordmark, Mark }

    property int asset: BrandLogo.Wordmark

    implicitHeight: 28
    implicitWidth: image.status === Image.Error ? name.implicitWidth
                 : image.implicitHeight > 0 ? height * image.implicitWidth / image.implicitHeight : 0
    Accessible.role: Accessible.Graphic
    Accessible.name: "Tidewell"

    Image {
        id: image
        anchors.fill: parent
        source: "qrc:/Tidewell/logos/"
                + (root.asset === BrandLogo.Wordmark ? "logo-wordmark.svg" : "logo-mark.svg")
        sourceSize.height: Math.ceil(root.height * Screen.devicePixelRatio)
        fillMode: Image.PreserveAspectFit
    }

    Label {
        id: name
        anchors.verticalCenter: parent.verticalCenter
        visible: image.status === Image.Error
        text: "Tidewell"
        size: root.height * 0.72
        weight: Font.Bold
        font.letterSpacing: -0.3
        Accessible.ignored: true
    }
}
