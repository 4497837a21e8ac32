import QtQuick
import Tidewell

/// The big round button that starts a scan.
Pressable {
    id: root

    property string symbol
    property alias title: root.text
    property sectionPalette sectionPalette: Ambient.palette

    implicitWidth: 200
    implicitHeight: 200
    scale: pressed ? 0.98 : hovered ? 1.04 : 1

    background: GlowBox {
        cornerRadius: width / 2
        reach: 60
        glow: Theme.withOpacity(root.sectionPalette.primary, 0.20 + 0.16 * root.lift)
        fillTop: Qt.tint(Theme.panelTop(root.sectionPalette.primary),
                         Theme.withOpacity(root.sectionPalette.primary, 0.24))
        fillBottom: Qt.tint(Theme.panelBottom(root.sectionPalette.primary),
                            Theme.withOpacity(root.sectionPalette.deep, 0.30))
        rim: Theme.withOpacity(root.sectionPalette.soft, 0.34 + 0.20 * root.lift)
    }

    contentItem: Item {
        Column {
            anchors.centerIn: parent
            spacing: Theme.gapWide

            GlossyBlob {
                anchors.horizontalCenter: parent.horizontalCenter
                size: 62
                symbol: root.symbol
                sectionPalette: root.sectionPalette
                lift: root.lift
            }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, 164)
                text: root.title
                size: Theme.sizeCard
                weight: Font.DemiBold
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
    }
}
