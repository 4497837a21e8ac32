pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

Page {
    Row {
        spacing: 48

        Repeater {
            model: 7
            Column {
                id: sidebar
                required property int index
                spacing: 5
                width: 208
                visible: index === 1 || index === 3 || index === 5

                readonly property var rows: [
                    ["house.fill", "Home", Kit.green], ["sparkles", "Clean", Kit.green],
                    ["hammer.fill", "Dev Mode", Kit.cyan], ["square.grid.2x2.fill", "Apps", Kit.violet],
                    ["speedometer", "Performance", Kit.teal], ["scope", "Deep Scan", Kit.blue],
                    ["wand.and.stars", "Advisor", Kit.amber]]

                BrandLogo { height: 30 }
                Item { width: 1; height: 16 }
                Repeater {
                    model: sidebar.rows
                    SidebarRow {
                        required property var modelData
                        required property int index
                        width: sidebar.width
                        symbol: modelData[0]
                        label: modelData[1]
                        sectionPalette: modelData[2]
                        isActive: index === sidebar.index
                        lift: index === sidebar.index + 1 ? 1 : 0
                        FocusRing { visible: parent.index === sidebar.index - 1; cornerRadius: 11; gap: 2 }
                    }
                }
            }
        }
    }
}
