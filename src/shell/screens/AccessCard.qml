import QtQuick
import Tidewell

/// Whether Full Disk Access is granted: a quiet row if it is, else a card with the way there.
Item {
    id: root

    required property WindowScreen screen

    implicitHeight: screen.hasFullDiskAccess ? granted.implicitHeight : missing.implicitHeight

    Item {
        id: granted
        width: parent.width
        implicitHeight: 34
        visible: root.screen.hasFullDiskAccess
        Accessible.role: Accessible.StaticText
        Accessible.name: title.text

        Symbol {
            x: 12
            anchors.verticalCenter: parent.verticalCenter
            symbol: root.screen.accessSymbol
            size: Theme.symbolRow
            tint: root.Ambient.palette.primary
        }
        Label {
            id: title
            x: 38
            anchors.verticalCenter: parent.verticalCenter
            text: root.screen.accessTitle
            size: Theme.sizeControl
            color: Theme.secondary
            Accessible.ignored: true
        }
    }

    GlowCard {
        id: missing
        width: parent.width
        visible: !root.screen.hasFullDiskAccess
        cornerRadius: Theme.radius
        padding: 14
        implicitHeight: column.implicitHeight + 2 * padding

        Column {
            id: column
            width: parent.width
            spacing: Theme.gapSmall

            Row {
                spacing: Theme.gapSmall
                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    symbol: root.screen.accessSymbol
                    size: Theme.symbolRow
                    tint: root.Ambient.palette.primary
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.screen.accessTitle
                    size: Theme.sizeText
                    weight: Font.DemiBold
                }
            }
            Label {
                width: parent.width
                text: "Grant access to unlock all cleaning features."
                size: Theme.sizeDetail
                lineHeight: 1.2
                color: Theme.secondary
                wrapMode: Text.WordWrap
            }
            PillButton {
                width: parent.width
                topPadding: 8
                bottomPadding: 8
                fontSize: Theme.sizeControl
                text: "Enable Access"
                onClicked: root.screen.enableAccess()
            }
        }
    }
}
