pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// All that the window shows: the sidebar, beside it one tool at a time, and what lies over both.
Item {
    id: root

    required property WindowScreen screen

    Ambient.palette: screen.palette

    /// The keyboard goes into the section in sight.
    function enterDetail() {
        detail.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    Item {
        id: below
        anchors.fill: parent

        AmbientBackground {
            anchors.fill: parent
            visible: root.screen.introHomeOpacity > 0
        }

        FocusScope {
            id: home

            readonly property real wantedOpacity: root.screen.introHomeOpacity

            anchors.fill: parent
            focus: true
            enabled: root.screen.hasOnboarded && wantedOpacity > 0
            onEnabledChanged: {
                if (enabled)
                    forceActiveFocus()
            }
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
                to: 1
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
                color: Theme.hairline
            }

            DetailArea {
                id: detail
                anchors.left: divider.right
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                screen: root.screen
            }
        }
    }

    PassingView {
        anchors.fill: parent
        isWanted: root.screen.isPlayingIntro
        view: "IntroRevealView.qml"
        given: ({screen: root.screen.intro})
    }
    PassingView {
        anchors.fill: parent
        isWanted: !root.screen.hasOnboarded
        view: "OnboardingView.qml"
        given: ({screen: root.screen.onboarding, below: below})
        fadeTime: 400
    }

    AboutView {
        screen: root.screen.about
        sectionPalette: root.screen.palette
    }
}
