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

    StartNote {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -8
        visible: root.screen.phase === AppsScreen.Idle
        focus: visible
        symbol: root.screen.noticeSymbol
        line: root.screen.noticeLine
        buttonLabel: root.screen.scanLabel
        onStarted: root.screen.scan()
    }

    ScreenHeader {
        id: header
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.right: sort.left
        anchors.rightMargin: Theme.gapLarge
        y: 30
        visible: root.screen.phase !== AppsScreen.Idle
        title: root.screen.title
        subtitle: root.screen.subtitle
    }
    MenuPicker {
        id: sort
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        y: 36
        visible: root.isList && !root.screen.isEmpty
        focus: visible
        symbol: root.screen.sortSymbol
        text: root.screen.sortLabel
        model: root.screen.sortChoices
        onChosen: row => root.screen.sortBy(row)
    }

    ScanningNote {
        anchors.centerIn: parent
        visible: root.screen.phase === AppsScreen.Scanning
        symbol: root.screen.noticeSymbol
        title: root.screen.noticeLine
        barWidth: 240
        progress: root.screen.progress
    }

    Item {
        anchors.fill: parent
        anchors.topMargin: 104
        visible: root.isList

        StartNote {
            anchors.centerIn: parent
            anchors.verticalCenterOffset: -60
            visible: root.screen.isEmpty
            symbol: root.screen.noticeSymbol
            title: root.screen.noticeTitle
            line: root.screen.noticeLine
            buttonLabel: root.screen.scanLabel
            onStarted: root.screen.scan()
        }
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
            dismissSymbol: root.screen.dismissSymbol
            dismissLabel: root.screen.dismissLabel
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
            Accessible.name: root.screen.title

            T.ScrollBar.vertical: ScrollHandle {}

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
                trashSymbol: root.screen.trashSymbol
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
                text: root.screen.huntingLine
                size: Theme.sizeControl
                weight: Font.Medium
            }
        }
    }

    UninstallSheet {
        screen: root.screen
        sectionPalette: root.Ambient.palette
    }
}
