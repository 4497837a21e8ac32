pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// A choice among a few, all in sight: one of them is lit. The model's rows have `label` and
/// `isChosen`. The keyboard comes to it once and chooses with the arrows.
Surface {
    id: root

    property alias model: segments.model

    signal chosen(int row)

    implicitWidth: row.width + 6
    implicitHeight: 36
    radius: height / 2
    Accessible.role: Accessible.PageTabList

    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)

    function step(by: int) {
        for (let row = 0; row < segments.count; ++row) {
            const next = segments.itemAt(row + by) as Pressable
            if (segments.itemAt(row).activeFocus && next) {
                next.forceActiveFocus(Qt.TabFocusReason)
                chosen(row + by)
                return
            }
        }
    }

    Row {
        id: row
        anchors.centerIn: parent

        Repeater {
            id: segments

            Pressable {
                id: segment

                required property int index
                required property string label
                required property bool isChosen

                height: 30
                implicitHeight: 30
                horizontalPadding: 17
                focusGap: 2
                text: label
                focusPolicy: isChosen ? Qt.StrongFocus : Qt.ClickFocus
                Accessible.selectable: true
                Accessible.selected: isChosen
                onClicked: root.chosen(index)

                background: Item {
                    GlowBox {
                        id: fill
                        anchors.fill: parent
                        opacity: segment.isChosen ? 1 : 0
                        visible: opacity > 0
                        cornerRadius: height / 2
                        reach: 18
                        glow: Theme.withOpacity(segment.Ambient.palette.primary, 0.22)
                        fillTop: Theme.raisedTop(segment.Ambient.palette.primary, 0)
                        fillBottom: Theme.raisedBottom(segment.Ambient.palette.primary, 0)
                        rim: Theme.raisedRim
                        shade: 0.2
                        Fade on opacity {}
                    }
                    Rectangle {
                        anchors.fill: parent
                        visible: !segment.isChosen
                        radius: height / 2
                        color: Theme.hoverFill
                        opacity: segment.lift
                    }
                }
                contentItem: SymbolLabel {
                    text: segment.label
                    size: Theme.sizeControl
                    weight: segment.isChosen ? Font.DemiBold : Font.Medium
                    // Readable at each moment of the fill's coming and going.
                    tint: fill.opacity > 0.5 ? Theme.textOn(segment.Ambient.palette.primary)
                                             : Theme.quiet(segment.lift)
                }
            }
        }
    }
}
