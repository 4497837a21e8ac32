pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Tidewell

/// The Apps tool: every application with its size and when it was last used, to be uninstalled
/// together with what it has left elsewhere.
FocusScope {
    id: root

    required property AppsScreen screen

    readonly property real margin: Theme.pageMargin(width)
    readonly property bool isList: screen.phase === AppsScreen.List

    Component.onCompleted: screen.open()

    ToolPage {
        anchors.fill: parent
        focus: true
        phase: root.screen.phase === AppsScreen.Idle ? ToolPage.Start
             : root.screen.phase === AppsScreen.Scanning ? ToolPage.Scanning
             : root.screen.isEmpty ? ToolPage.Nothing : ToolPage.Found
        symbol: root.screen.noticeSymbol
        title: "Apps"
        subtitle: root.screen.subtitle
        startLine: root.screen.noticeLine
        startLabel: "Scan Apps"
        onStarted: root.screen.scan()
        scanningTitle: root.screen.noticeLine
        progress: root.screen.progress
        nothingTitle: root.screen.noticeTitle
        nothingLine: root.screen.noticeLine
        nothingLabel: "Scan Apps"
        onLeftNothing: root.screen.scan()

        actions: MenuPicker {
            id: sort
            visible: root.isList && !root.screen.isEmpty
            focus: visible
            symbol: "arrow.up.arrow.down"
            text: root.screen.sortLabel
            model: root.screen.sortChoices
            onChosen: row => root.screen.sortBy(row)
        }

        Item {
            Banner {
                id: banner
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.leftMargin: root.margin
                anchors.rightMargin: root.margin
                anchors.bottom: parent.bottom
                anchors.bottomMargin: Theme.gapLarge
                visible: root.screen.hasBanner
                symbol: root.screen.bannerSymbol
                tint: root.screen.isBannerWarning ? Theme.caution : Theme.success
                title: root.screen.bannerTitle
                line: root.screen.bannerLine
                undoLabel: root.screen.undoLabel
                onUndone: root.screen.putBack()
                isDismissible: true
                onDismissed: reason => {
                    root.screen.dismissResult()
                    sort.forceActiveFocus(reason)
                }
            }

            GridView {
                id: grid

                readonly property real gap: 12
                readonly property int columns: Math.max(1, Math.floor(width / (230 + gap)))

                anchors.left: parent.left
                anchors.leftMargin: root.margin
                anchors.right: parent.right
                anchors.rightMargin: root.margin - gap
                y: 8
                height: parent.height - y
                bottomMargin: 24 + banner.room
                cellWidth: Math.floor(width / columns)
                cellHeight: 152 + gap
                clip: true
                cacheBuffer: 400
                boundsBehavior: Flickable.StopAtBounds
                activeFocusOnTab: false
                keyNavigationEnabled: false
                currentIndex: -1  // or the current card takes the keyboard itself
                model: root.screen.cards
                Accessible.role: Accessible.List
                Accessible.name: "Apps"

                T.ScrollBar.vertical: ScrollHandle {}

                SoftEnds { area: grid }

                RowKeeper {
                    rows: grid
                    onDeserted: reason => sort.forceActiveFocus(reason)
                }

                delegate: AppCard {
                    required property int index
                    required icon
                    required title
                    required line
                    required size
                    required version
                    required mark
                    required isUnused
                    required trashHelp

                    width: grid.cellWidth - grid.gap
                    onUninstalled: root.screen.prepareUninstall(index)
                }
            }

            InfoPill {
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                anchors.bottomMargin: 24 + banner.room
                visible: root.screen.isHuntingLeftovers
                fillTop: Theme.panelTop(root.Ambient.palette.primary)
                fillBottom: fillTop

                Spinner {
                    anchors.verticalCenter: parent.verticalCenter
                    diameter: 14
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "Hunting leftovers…"
                    size: Theme.sizeControl
                    weight: Font.Medium
                }
            }
        }
    }

    UninstallSheet {
        screen: root.screen
        sectionPalette: root.Ambient.palette
    }
}
