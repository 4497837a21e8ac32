import QtQuick
import Tidewell

/// A tool's page: what the tool is for before it has looked, how far it is while it looks, and then,
/// below a title with the actions beside it, what it found, or a word that it found nothing. Margins
/// and phases are written once, here.
FocusScope {
    id: root

    enum Phase { Start, Scanning, Nothing, Found }

    property int phase: ToolPage.Start
    /// Of the page as long as it has nothing to list.
    property string symbol

    property string title
    property string subtitle
    property bool hasHeader: phase !== ToolPage.Start
    /// At the right of the title.
    property alias actions: buttons.data
    /// The one at which the keyboard goes on when what it was at has gone.
    property Item firstAction: null

    property string startTitle
    property string startLine
    property string startLabel
    property string startSymbol
    signal started()

    property string scanningTitle
    property string scanningLine
    /// Below 0 if it is not known.
    property double progress: -1

    property string nothingTitle
    property string nothingLine
    property string nothingLabel
    signal leftNothing()
    /// What a scan had to pass over, told where it found nothing.
    property string note

    /// What was found: made when there is something for the first time, on the page from below the header on, over its
    /// whole width. Whatever stands in it keeps the page's margin by itself.
    default property Component found
    /// Whether the keyboard begins there, and not at the actions.
    property bool isListFirst: false
    property real foundTop: 104

    readonly property real margin: Theme.pageMargin(width)

    Component.onCompleted: settle()
    onPhaseChanged: settling.restart()

    /// The keyboard is where the phase has something to press. If what it was at in the list has gone
    /// out of sight, it goes on to the actions.
    function settle() {
        const isLeft = body.isLeft
        body.isLeft = false
        if (isLeft && firstAction)
            firstAction.forceActiveFocus(body.lastReason)
        else if (isLeft)
            buttons.nextItemInFocusChain().forceActiveFocus(body.lastReason)
        else if (note.isWanted && note.buttonLabel !== "")
            note.focus = true
    }

    Timer {
        id: settling
        interval: 0  // as soon as the phase shows
        onTriggered: root.settle()
    }

    ScreenHeader {
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.right: buttons.left
        anchors.rightMargin: Theme.gapLarge
        y: 30
        visible: root.hasHeader
        title: root.title
        subtitle: root.subtitle
    }
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        y: 51 - height / 2
        visible: root.hasHeader
        spacing: Theme.gapSmall
    }

    StartNote {
        id: note

        readonly property bool isWanted: root.phase === ToolPage.Start || root.phase === ToolPage.Nothing
        /// What it tells, also while it goes.
        property bool isStart: true

        function follow() {
            if (isWanted)
                isStart = root.phase === ToolPage.Start
        }

        anchors.centerIn: parent
        anchors.verticalCenterOffset: -8
        enabled: isWanted
        opacity: isWanted ? 1 : 0
        visible: opacity > 0
        onIsWantedChanged: follow()
        Component.onCompleted: follow()
        symbol: root.symbol
        title: isStart ? root.startTitle : root.nothingTitle
        line: isStart ? root.startLine : root.nothingLine
        buttonSymbol: isStart ? root.startSymbol : ""
        buttonLabel: isStart ? root.startLabel : root.nothingLabel
        onStarted: isStart ? root.started() : root.leftNothing()

        Fade on opacity {}
    }
    ScanningNote {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -8
        opacity: root.phase === ToolPage.Scanning ? 1 : 0
        visible: opacity > 0
        symbol: root.symbol
        title: root.scanningTitle
        line: root.scanningLine
        progress: root.progress

        Fade on opacity {}
    }
    LeftOutNote {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: root.margin
        anchors.rightMargin: root.margin
        anchors.bottomMargin: Theme.gapWide
        text: root.phase === ToolPage.Nothing ? root.note : ""
    }
    FocusScope {
        id: body

        readonly property bool isWanted: root.phase === ToolPage.Found
        property bool isMade: false
        /// It went out of sight with the keyboard in it.
        property bool isLeft: false
        property int lastReason: Qt.OtherFocusReason

        anchors.fill: parent
        anchors.topMargin: root.foundTop
        visible: isWanted
        focus: isWanted && root.isListFirst
        Component.onCompleted: follow()
        onIsWantedChanged: {
            isLeft = !isWanted && activeFocus
            follow()
        }

        function follow() {
            if (!isWanted)
                return
            isMade = true
            if (root.Motion.hasPassages)
                coming.restart()
        }

        Window.onActiveFocusItemChanged: {
            const control = Window.activeFocusItem as Pressable
            if (control && activeFocus)
                lastReason = control.focusReason
        }

        Repeater {
            model: body.isMade ? 1 : 0
            delegate: root.found
            onItemAdded: (row, item) => {
                item.anchors.fill = body
                item.focus = true
            }
        }
    }
    NumberAnimation {
        id: coming
        target: body
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.comeTime
        easing.type: Easing.OutCubic
    }
}
