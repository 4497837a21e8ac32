import QtQuick
import QtQuick.Templates as T
import Tidewell

/// A card over the whole window, which does not react as long as the card is there. Escape cancels;
/// the keyboard stays inside and goes back to where it was.
T.Popup {
    id: root

    default property alias content: inside.data
    property string title
    property bool isWanted: false
    property sectionPalette sectionPalette

    /// What has the keyboard as soon as the card is there.
    property Item firstFocus
    property Item lastFocus
    property int lastReason: Qt.OtherFocusReason
    readonly property Settling settling: Settling {}

    signal confirmed()
    signal cancelled()

    /// For what cannot be taken back: not as soon as the card has come under the pointer.
    function confirm() {
        if (settling.isOver())
            confirmed()
    }

    onAboutToShow: {
        settling.begin()
        if (!lastFocus) {  // it may be on its way out
            lastFocus = parent.Window.activeFocusItem
            lastReason = (lastFocus as Pressable)?.focusReason ?? Qt.OtherFocusReason
        }
        if (firstFocus)
            firstFocus.forceActiveFocus()
    }
    onClosed: {
        if (lastFocus)
            lastFocus.forceActiveFocus(lastReason)
        lastFocus = null
    }

    visible: isWanted
    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: 420
    implicitHeight: inside.childrenRect.height + topPadding + bottomPadding
    padding: 26
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: inside.Motion.hasPassages ? 150 : 0 }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; to: 0; duration: inside.Motion.hasPassages ? 110 : 0 }
    }

    T.Overlay.modal: Rectangle {
        color: Theme.scrim
        Fade on opacity {}
    }
    background: GlowBox {
        cornerRadius: Theme.radiusPanel
        reach: 60
        shade: 0.7
        fillTop: Theme.panelTop(root.sectionPalette.primary)
        fillBottom: Theme.panelBottom(root.sectionPalette.primary)
        rim: Theme.panelRim
        glow: Theme.withOpacity(root.sectionPalette.primary, 0.10)
        cornerLight: 0.5
    }
    contentItem: Item {
        id: inside
        Ambient.palette: root.sectionPalette
        Accessible.role: Accessible.Dialog
        Accessible.name: root.title
        Keys.onEscapePressed: root.cancelled()
    }
}
