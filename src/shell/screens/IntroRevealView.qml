import QtQuick
import Tidewell

/// The film of the first start, which dissolves into what lies below.
Rectangle {
    id: root

    required property IntroScreen screen

    color: "black"
    opacity: screen.opacity
    Component.onCompleted: {
        screen.begin()
        if (screen.opacity > 0)
            film.setSource("Film.qml", {screen: root.screen})
    }

    Behavior on opacity {
        NumberAnimation { duration: 2500; easing.type: Easing.InOutQuad }
    }

    Loader {
        id: film
        anchors.fill: parent
        onStatusChanged: {
            if (status === Loader.Error)
                root.screen.filmIsMissing()
        }
    }
    NoiseOverlay { anchors.fill: parent }  // no bands in the dark
}
