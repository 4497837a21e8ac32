pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Tidewell

/// Everything that goes with an application, before it goes; and the command for what only the user
/// can take away.
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
        UninstallCommand {
            id: command
            anchors.top: header.bottom
            anchors.topMargin: visible ? Theme.gapWide : 0
            width: parent.width
            height: visible ? implicitHeight : 0
            visible: root.screen.commandText !== ""
            lead: root.screen.commandLead
            command: root.screen.commandText
            note: root.screen.commandNote
            warning: root.screen.commandWarning
            isCopied: root.screen.isCommandCopied
            onCopied: root.screen.copyCommand()
        }
        ListView {
            id: list
            anchors.top: command.bottom
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

            SoftEnds { area: list }

            delegate: UninstallRow {
                required property int index
                required hasTick
                required isOn
                required symbol
                required title
                required label
                required size

                width: ListView.view.width
                onFlipped: root.screen.toggleLeftover(index)
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
            symbol: "arrow.uturn.backward"
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
                text: "Cancel"
                onClicked: root.cancelled()
            }
            PillButton {
                anchors.verticalCenter: parent.verticalCenter
                fontSize: Theme.sizeText
                verticalPadding: 10
                tint: Theme.destructive
                visible: root.screen.canConfirm
                text: root.screen.confirmLabel
                onClicked: root.confirm()
            }
        }
    }
}
