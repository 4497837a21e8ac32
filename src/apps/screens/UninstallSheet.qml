pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Tidewell

/// Everything that goes with an application, before it goes. Nothing on it is ticked by itself: it
/// goes whole or not at all.
Modal {
    id: root

    required property AppsScreen screen

    isWanted: screen.hasSheet
    title: screen.sheetTitle
    width: 480
    height: 560
    firstFocus: cancelButton
    onConfirmed: screen.confirmUninstall()
    onCancelled: screen.cancelUninstall()

    Item {
        width: root.availableWidth
        height: root.availableHeight

        ScreenHeader {
            id: header
            width: parent.width
            title: root.title
            subtitle: root.screen.sheetLine
        }
        ListView {
            id: list
            anchors.top: header.bottom
            anchors.topMargin: Theme.gapWide
            anchors.bottom: undo.top
            anchors.bottomMargin: Theme.gap
            width: parent.width
            clip: true
            spacing: Theme.gapSmall
            boundsBehavior: Flickable.StopAtBounds
            model: root.screen.sheetRows
            activeFocusOnTab: contentHeight > height
            Accessible.role: Accessible.List
            Accessible.name: root.screen.sheetLine

            Keys.onUpPressed: flick(0, 600)
            Keys.onDownPressed: flick(0, -600)

            T.ScrollBar.vertical: ScrollHandle {}

            delegate: UninstallRow {
                required symbol
                required title
                required label
                required size

                width: ListView.view.width
            }
        }
        Label {
            y: list.y + list.contentHeight + 18
            width: parent.width
            visible: text !== ""
            horizontalAlignment: Text.AlignHCenter
            text: root.screen.sheetEmptyNote
            size: Theme.sizeControl
            color: Theme.secondary
        }
        SymbolLabel {
            id: undo
            anchors.bottom: buttons.top
            anchors.bottomMargin: Theme.gapWide
            symbol: root.screen.undoSymbol
            text: root.screen.undoLine
            size: Theme.sizeNote
            weight: Font.Normal
            tint: Theme.secondary
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Row {
            id: buttons
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            spacing: Theme.gap

            GhostPillButton {
                id: cancelButton
                anchors.verticalCenter: parent.verticalCenter
                text: root.screen.cancelLabel
                onClicked: root.cancelled()
            }
            PillButton {
                anchors.verticalCenter: parent.verticalCenter
                fontSize: Theme.sizeText
                verticalPadding: 10
                tint: Theme.destructive
                text: root.screen.confirmLabel
                onClicked: root.confirm()
            }
        }
    }
}
