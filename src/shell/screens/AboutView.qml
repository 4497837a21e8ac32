pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// What the program is and who makes it.
Modal {
    id: root

    required property AboutScreen screen

    width: 400
    title: "About Tidewell"
    isWanted: screen.isOpen
    firstFocus: closeButton
    onCancelled: screen.close()

    Item {
        width: parent.width
        height: column.y + column.height

        IconButton {
            id: closeButton
            anchors.right: parent.right
            anchors.rightMargin: -10
            y: -10
            size: 28
            symbol: "xmark"
            text: "Close"
            onClicked: root.screen.close()
        }

        Column {
            id: column
            y: 10
            width: parent.width
            spacing: 0

            BrandLogo {
                anchors.horizontalCenter: parent.horizontalCenter
                height: 46
            }
            Item { width: 1; height: 10 }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.screen.version
                size: Theme.sizeNote
                color: Theme.faint
            }
            Item { width: 1; height: 20 }
            Repeater {
                model: [root.screen.purpose, "Scan your storage, review what's taking up space, and "
                                             + "remove only what you no longer need."]

                Label {
                    required property string modelData

                    width: column.width
                    bottomPadding: 8
                    text: modelData
                    size: Theme.sizeText
                    lineHeight: 1.3
                    color: Theme.secondary
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
            }
            Item { width: 1; height: 8 }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: Theme.gapSmall

                Symbol {
                    id: shield
                    symbol: "lock.shield.fill"
                    size: Theme.symbolRow
                    tint: root.sectionPalette.primary
                }
                Label {
                    anchors.verticalCenter: shield.verticalCenter
                    text: "Your files stay yours. No one else can read them, not even us."
                    size: Theme.sizeDetail
                    weight: Font.Medium
                }
            }
            Item { width: 1; height: 18 }
            Surface {
                width: parent.width
                height: links.height + 12
                visible: rows.count > 0

                Column {
                    id: links
                    x: 6
                    y: 6
                    width: parent.width - 12

                    Repeater {
                        id: rows
                        model: root.screen.links

                        AboutLinkRow {
                            required property int index
                            required property string title
                            required symbol

                            width: links.width
                            text: title
                            onClicked: root.screen.openLink(index)
                        }
                    }
                }
            }
            Item { width: 1; height: 18 }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.screen.footer
                size: Theme.sizeDetail
                color: Theme.faint
            }
        }
    }
}
