pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The window's own frame, in the colour of what it holds: a strip to move the window by, its buttons,
/// and edges to resize it by. It takes no room from the content.
Item {
    id: root

    required property Window window

    readonly property bool isMaximized: window.visibility === Window.Maximized
                                        || window.visibility === Window.FullScreen
    readonly property real edge: 5

    /// The desktop lets no window move itself.
    signal failed()

    function toggleMaximized() {
        if (isMaximized)
            window.showNormal()
        else
            window.showMaximized()
    }

    MouseArea {
        property point start

        width: parent.width
        height: 30
        acceptedButtons: Qt.LeftButton
        onPressed: event => start = Qt.point(event.x, event.y)
        onPositionChanged: event => {
            if (Math.abs(event.x - start.x) + Math.abs(event.y - start.y) < 6)
                return
            if (!root.window.startSystemMove())
                root.failed()
        }
        onDoubleClicked: root.toggleMaximized()
    }

    component Edge: MouseArea {
        id: side

        property int edges

        visible: !root.isMaximized
        cursorShape: edges === Qt.LeftEdge || edges === Qt.RightEdge ? Qt.SizeHorCursor
                   : edges === Qt.TopEdge || edges === Qt.BottomEdge ? Qt.SizeVerCursor
                   : edges === (Qt.LeftEdge | Qt.TopEdge) || edges === (Qt.RightEdge | Qt.BottomEdge)
                     ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor
        x: edges & Qt.RightEdge ? root.width - width : 0
        y: edges & Qt.BottomEdge ? root.height - height : 0
        width: edges & (Qt.LeftEdge | Qt.RightEdge) ? root.edge : root.width
        height: edges & (Qt.TopEdge | Qt.BottomEdge) ? root.edge : root.height
        onPressed: {
            if (!root.window.startSystemResize(edges))
                root.failed()
        }
    }

    // The corners lie over the sides.
    Repeater {
        model: [Qt.LeftEdge, Qt.RightEdge, Qt.TopEdge, Qt.BottomEdge,
                Qt.LeftEdge | Qt.TopEdge, Qt.RightEdge | Qt.TopEdge,
                Qt.LeftEdge | Qt.BottomEdge, Qt.RightEdge | Qt.BottomEdge]

        Edge {
            required property int modelData
            edges: modelData
        }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: Theme.gapSmall
        y: Theme.gapSmall - 2
        spacing: Theme.gapHair

        component FrameButton: IconButton {
            size: 24
            isFilled: false
            focusPolicy: Qt.NoFocus  // as that of any frame: the keyboard has keys of its own for it
        }

        FrameButton {
            symbol: "minus"
            text: "Minimize"
            onClicked: root.window.showMinimized()
        }
        FrameButton {
            symbol: "square"
            text: root.isMaximized ? "Restore" : "Maximize"
            onClicked: root.toggleMaximized()
        }
        FrameButton {
            symbol: "xmark"
            text: "Close"
            onClicked: root.window.close()
        }
    }

    Rectangle {
        anchors.fill: parent
        visible: !root.isMaximized
        color: "transparent"
        border.width: 1
        border.color: Theme.panelRim
        Accessible.ignored: true
    }
}
