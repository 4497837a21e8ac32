pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Tidewell

/// The items of the category in view, largest first.
FocusScope {
    id: root

    required property ReviewScreen screen

    IconChip {
        id: icon
        symbol: root.screen.viewingSymbol
        size: 34
    }
    Label {
        anchors.left: icon.right
        anchors.leftMargin: 12
        anchors.right: choices.left
        anchors.rightMargin: 12
        anchors.verticalCenter: icon.verticalCenter
        text: root.screen.viewingTitle
        size: 17
        weight: Font.DemiBold
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
    }
    Row {
        id: choices
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: icon.verticalCenter
        spacing: 8

        SmallButton {
            text: root.screen.smartLabel
            onClicked: root.screen.selectSmartInView()
        }
        SmallButton {
            text: root.screen.allLabel
            onClicked: root.screen.selectAllInView()
        }
        SmallButton {
            text: root.screen.noneLabel
            onClicked: root.screen.selectNoneInView()
        }
    }

    ListView {
        id: list
        anchors.top: icon.bottom
        anchors.topMargin: 10
        anchors.left: parent.left
        anchors.leftMargin: -6
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        topMargin: 6
        bottomMargin: 14
        leftMargin: 6
        rightMargin: 12
        clip: true
        focus: true
        spacing: 8
        boundsBehavior: Flickable.StopAtBounds
        model: root.screen.chips
        activeFocusOnTab: true
        keyNavigationEnabled: false
        Accessible.role: Accessible.List
        Accessible.name: root.screen.viewingTitle

        Keys.onUpPressed: go(currentIndex - 1)
        Keys.onDownPressed: go(currentIndex + 1)

        function go(index: int) {
            if (index < 0 || index >= count)
                return
            currentIndex = index
            positionViewAtIndex(index, ListView.Contain)
            currentItem.forceActiveFocus()
            // The list has moved the focus already, without the reason that makes it seen.
            currentItem.focusReason = Qt.TabFocusReason
        }

        T.ScrollBar.vertical: ScrollHandle {}

        delegate: ItemChip {
            required property int index
            required title
            required detail
            required size
            required isOn
            required property bool hasReviewBadge

            width: list.width - list.leftMargin - list.rightMargin
            // The keyboard comes to the list once, and goes through it with the arrows.
            focusPolicy: Qt.ClickFocus
            badge: hasReviewBadge ? root.screen.reviewBadge : ""
            onClicked: root.screen.toggleChip(index)
            onActiveFocusChanged: if (activeFocus) list.currentIndex = index
        }
    }
}
