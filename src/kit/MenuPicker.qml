pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Tidewell

/// A small button that shows which of several ways is chosen, and opens their list. The model's
/// rows have `label` and `isChosen`.
GhostPillButton {
    id: root

    property var model

    signal chosen(int row)

    fontSize: Theme.sizeControl
    horizontalPadding: 14
    verticalPadding: 7
    onClicked: list.visible ? list.close() : list.open()

    T.Popup {
        id: list

        y: root.height + 6
        x: root.width - width
        width: 190
        implicitHeight: rows.implicitHeight + topPadding + bottomPadding
        padding: 6
        focus: true
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

        background: Rectangle {
            radius: Theme.radius
            color: Theme.panelTop(root.Ambient.palette.primary)
            border.width: 1
            border.color: Theme.panelRim
        }
        contentItem: Column {
            id: rows

            Keys.onUpPressed: step(-1)
            Keys.onDownPressed: step(1)

            function step(by: int) {
                for (let row = 0; row < choices.count; ++row) {
                    const next = choices.itemAt(row + by)
                    if (choices.itemAt(row).activeFocus && next) {
                        next.forceActiveFocus(Qt.TabFocusReason)
                        return
                    }
                }
            }

            Repeater {
                id: choices
                model: root.model

                Pressable {
                    id: choice

                    required property int index
                    required property string label
                    required property bool isChosen

                    width: list.availableWidth
                    implicitHeight: 32
                    cornerRadius: Theme.radiusSmall
                    focusGap: -1
                    focus: isChosen
                    text: label
                    Accessible.selectable: true
                    Accessible.selected: isChosen
                    onClicked: {
                        list.close()
                        root.chosen(index)
                    }

                    background: Rectangle {
                        radius: choice.cornerRadius
                        color: Theme.hover(1.5 * choice.lift)
                    }
                    contentItem: Item {
                        Symbol {
                            x: 8
                            anchors.verticalCenter: parent.verticalCenter
                            visible: choice.isChosen
                            symbol: "checkmark"
                            size: Theme.symbolSmall
                            tint: root.Ambient.palette.primary
                        }
                        Label {
                            x: 30
                            anchors.verticalCenter: parent.verticalCenter
                            text: choice.label
                            size: Theme.sizeControl
                            Accessible.ignored: true
                        }
                    }
                }
            }
        }
    }
}
