pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

Page {
    Column {
        spacing: 44

        Repeater {
            model: [Kit.green, Kit.blue, Kit.violet, Kit.amber, Kit.cyan, Kit.teal]
            Row {
                id: row
                required property sectionPalette modelData
                Ambient.palette: modelData
                spacing: 40
                PillButton { text: "Scan My Mac"; symbol: "sparkles" }
                PillButton { text: "Hovered"; symbol: "sparkles"; lift: 1 }
                PillButton { text: "Next"; symbol: "arrow.right"; isSymbolLast: true }
                GhostPillButton { text: "Back" }
                GhostPillButton { text: "Hovered"; lift: 1 }
            }
        }
        Row {
            spacing: 40
            Specimen { name: "disabled"; PillButton { text: "Clean Up"; enabled: false } }
            Specimen { name: "disabled"; GhostPillButton { text: "Back"; enabled: false } }
            Specimen { name: "focus"; PillButton { text: "Clean Up"; FocusRing { cornerRadius: height / 2 } } }
            Specimen { name: "focus"; GhostPillButton { text: "Rescan"; FocusRing { cornerRadius: height / 2 } } }
            Specimen { name: "destructive"; PillButton { text: "Move to Trash"; symbol: "trash"; tint: Theme.destructive } }
            Specimen { name: "small"; PillButton { text: "Delete…"; fontSize: 11.5; horizontalPadding: 14; verticalPadding: 6 } }
            Specimen {
                name: "picker"
                SegmentedPicker {
                    model: ListModel {
                        ListElement { label: "Memory"; isChosen: true }
                        ListElement { label: "Startup"; isChosen: false }
                    }
                }
            }
            Specimen { name: "too narrow"; PillButton { width: 130; text: "A very long label"; symbol: "sparkles" } }
        }
        Row {
            spacing: 70
            Specimen { name: "scan circle"; ScanCircleButton { symbol: "sparkles"; title: "Scan" } }
            Specimen { name: "hovered"; ScanCircleButton { symbol: "scope"; title: "Deep Scan"; Ambient.palette: Kit.blue; lift: 1; scale: 1.04 } }
            Specimen { name: "focus"; ScanCircleButton { symbol: "hammer.fill"; title: "Scan Dev & AI"; Ambient.palette: Kit.cyan; FocusRing { cornerRadius: height / 2 } } }
            Specimen { name: "disabled"; ScanCircleButton { symbol: "wand.and.stars"; title: "Check My Mac"; Ambient.palette: Kit.amber; enabled: false } }
        }
    }
}
