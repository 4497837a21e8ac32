pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

Page {
    Column {
        spacing: 40
        Repeater {
            model: [Kit.green, Kit.blue, Kit.violet, Kit.amber, Kit.cyan, Kit.teal]
            Row {
                id: row
                required property sectionPalette modelData
                Ambient.palette: modelData
                spacing: 44
                GlossyBlob { size: 120; symbol: "sparkles"; anchors.verticalCenter: parent.verticalCenter }
                GlossyBlob { size: 62; symbol: "scope"; anchors.verticalCenter: parent.verticalCenter }
                GlossyBlob { size: 62; symbol: "lock.shield.fill"; lift: 1; anchors.verticalCenter: parent.verticalCenter }
                GlossyBlob { size: 44; symbol: "square.grid.2x2.fill"; anchors.verticalCenter: parent.verticalCenter }
                GlossyBlob { size: 44; symbol: "wand.and.stars"; anchors.verticalCenter: parent.verticalCenter }
                GlossyBlob { size: 26; symbol: "house.fill"; anchors.verticalCenter: parent.verticalCenter }
                GlossyBlob { size: 16; symbol: "checkmark"; anchors.verticalCenter: parent.verticalCenter }
                IconChip { size: 48; symbol: "cube.box.fill"; anchors.verticalCenter: parent.verticalCenter }
                IconChip { size: 34; symbol: "lock.shield.fill"; anchors.verticalCenter: parent.verticalCenter }
                IconChip { size: 26; symbol: "folder.fill"; anchors.verticalCenter: parent.verticalCenter }
                IconChip { size: 34; symbol: "trash.fill"; tint: Theme.destructive; anchors.verticalCenter: parent.verticalCenter }
            }
        }
    }
}
