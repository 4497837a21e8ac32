import QtQuick
import Tidewell

/// The first-run screen, over a window that does not react as long as it is there.
FocusScope {
    id: root

    required property OnboardingScreen screen
    /// What shows through.
    required property Item below

    Ambient.palette: Kit.green

    Frost {
        id: frost
        anchors.fill: parent
        below: root.below
    }
    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(0, 0, 0, 0.7)
    }
    RoundLight {
        x: (parent.width - width) / 2
        y: -radius
        radius: 360
        strength: 0.12
    }

    Column {
        anchors.centerIn: parent
        width: 480
        spacing: 0

        BrandLogo {
            anchors.horizontalCenter: parent.horizontalCenter
            asset: BrandLogo.Mark
            height: 76
            Accessible.ignored: true
        }
        Item { width: 1; height: 26 }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Tidewell"
            size: Theme.sizeHero
            weight: Font.Bold
            font.letterSpacing: -0.8
            Accessible.role: Accessible.Heading
        }
        Item { width: 1; height: 12 }
        Label {
            width: parent.width
            text: root.screen.line
            size: Theme.sizeCard
            lineHeight: 1.35
            color: Theme.secondary
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
        Item { width: 1; height: 38 }
        PillButton {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 220
            verticalPadding: 14
            fontSize: Theme.sizeCard
            focus: true
            text: "Get Started"
            onClicked: {
                frost.isLive = false  // on the way out it shows what it showed
                root.screen.getStarted()
            }
        }
    }
}
