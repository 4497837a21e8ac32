pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

Page {
    Grid {
        columns: 10
        spacing: 8
        Repeater {
            model: [
                "app.badge.fill", "app.fill", "arrow.right",
                "arrow.triangle.2.circlepath", "arrow.up.arrow.down", "arrow.up.right",
                "arrow.up.right.circle.fill", "arrow.uturn.backward", "bird.fill",
                "brain.head.profile", "checkmark", "checkmark.circle.fill",
                "checkmark.seal.fill", "checkmark.shield.fill", "chevron.left",
                "chevron.left.forwardslash.chevron.right", "chevron.right", "clock.arrow.circlepath",
                "cloud.fill", "cube.box.fill", "cube.transparent",
                "cup.and.saucer.fill", "curlybraces", "doc.fill",
                "exclamationmark.circle.fill", "exclamationmark.triangle.fill", "folder.fill",
                "gamecontroller.fill", "gearshape.2.fill", "gearshape.fill",
                "globe", "hammer.fill", "hand.raised.fill",
                "house.fill", "info.circle", "info.circle.fill",
                "iphone.gen3", "iphone.slash", "lock.shield.fill",
                "magnifyingglass", "minus", "mug.fill",
                "p.square.fill", "person.crop.circle", "play.rectangle.fill",
                "questionmark.circle.fill", "scope", "shippingbox",
                "shippingbox.fill", "sparkles", "speedometer",
                "square.grid.2x2.fill", "terminal", "trash",
                "trash.fill", "wand.and.stars", "xmark"
            ]
            Column {
                id: cell
                required property string modelData
                width: 112
                spacing: 8
                Row {
                    anchors.horizontalCenter: parent.horizontalCenter
                    spacing: 14
                    Symbol { symbol: cell.modelData; size: 32 }
                    Symbol { symbol: cell.modelData; size: 16; tint: Kit.green.soft; anchors.verticalCenter: parent.verticalCenter }
                }
                Label {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideMiddle
                    text: cell.modelData
                    size: 10
                    color: Theme.faint
                }
            }
        }
    }
}
