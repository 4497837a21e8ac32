pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Tidewell

/// The items of one group, to be ticked one by one or all at once.
FocusScope {
    id: root

    property string symbol
    property string title
    /// Its rows have what an ItemChip shows.
    property var model

    signal smartPicked()
    signal allPicked()
    signal nonePicked()
    signal toggled(int row)

    IconChip {
        id: icon
        symbol: root.symbol
        size: 34
    }
    Label {
        anchors.left: icon.right
        anchors.leftMargin: Theme.gap
        anchors.right: choices.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: icon.verticalCenter
        text: root.title
        size: Theme.sizeHeading
        weight: Font.DemiBold
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
    }
    Row {
        id: choices
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: icon.verticalCenter
        spacing: Theme.gapSmall

        SmallButton {
            text: "Smart"
            onClicked: root.smartPicked()
        }
        SmallButton {
            text: "All"
            onClicked: root.allPicked()
        }
        SmallButton {
            text: "None"
            onClicked: root.nonePicked()
        }
    }

    ListView {
        id: list
        anchors.top: icon.bottom
        anchors.topMargin: Theme.gap
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
        spacing: Theme.gapSmall
        boundsBehavior: Flickable.StopAtBounds
        model: root.model
        activeFocusOnTab: true
        keyNavigationEnabled: false
        Accessible.role: Accessible.List
        Accessible.name: root.title

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

        SoftEnds { area: list }

        delegate: ItemChip {
            required property int index
            required title
            required detail
            required size
            required isOn
            required badge

            width: list.width - list.leftMargin - list.rightMargin
            // The keyboard comes to the list once, and goes through it with the arrows.
            focusPolicy: Qt.ClickFocus
            onClicked: root.toggled(index)
            onActiveFocusChanged: if (activeFocus) list.currentIndex = index
        }
    }
}
