pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// All that the window shows: the sidebar, and beside it one tool at a time.
Item {
    id: root

    required property WindowScreen screen

    Ambient.palette: screen.palette

    AmbientBackground { anchors.fill: parent }

    Item {
        id: home

        readonly property real wantedOpacity: root.screen.introHomeOpacity

        anchors.fill: parent
        onWantedOpacityChanged: {
            if (wantedOpacity > opacity && root.screen.isPlayingIntro) {
                reveal.start()
            } else {
                reveal.stop()
                opacity = wantedOpacity
            }
        }

        NumberAnimation {
            id: reveal
            target: home
            property: "opacity"
            to: home.wantedOpacity
            duration: 3000
            easing.type: Easing.InOutQuad
        }

        Sidebar {
            id: sidebar
            width: 236
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            screen: root.screen
        }

        Rectangle {
            id: divider
            anchors.left: sidebar.right
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            width: 1
            color: Qt.rgba(1, 1, 1, 0.06)
        }

        DetailArea {
            anchors.left: divider.right
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            screen: root.screen
        }
    }
}
