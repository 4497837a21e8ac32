import QtQuick
import Tidewell

/// The place of a view that lies over the window for a while: made when it is wanted, and let go
/// when it has faded.
Loader {
    id: root

    property bool isWanted: false
    property url view
    /// What the view is made with.
    property var given: ({})
    property int fadeTime: 0

    function follow() {
        if (isWanted && !item)
            setSource(view, given)
    }

    opacity: isWanted ? 1 : 0
    onIsWantedChanged: follow()
    Component.onCompleted: follow()
    onOpacityChanged: {
        if (opacity === 0 && !isWanted)
            source = ""
    }
    onLoaded: (item as Item).forceActiveFocus()

    Behavior on opacity {
        enabled: root.Motion.hasPassages
        NumberAnimation { duration: root.fadeTime; easing.type: Easing.InOutQuad }
    }
}
