import QtQuick
import Tidewell

Page {
    Column {
        spacing: 40

        Row {
            spacing: 60
            Specimen { name: "start"; StartNote { width: 400; symbol: "scope"; line: "Finds what's actually big."; buttonLabel: "Deep Scan"; Ambient.palette: Kit.blue } }
            Specimen { name: "scanning"; ScanningNote { symbol: "scope"; title: "Hunting for big items…"; line: "Sizing everything up…"; progress: 0.4; Ambient.palette: Kit.blue } }
            Specimen { name: "no known end"; ScanningNote { symbol: "wand.and.stars"; title: "Checking simulators, snapshots, Docker…"; Ambient.palette: Kit.amber } }
        }
        Specimen {
            name: "banners"
            Column {
                spacing: 12
                Banner { width: 620; symbol: "checkmark.circle.fill"; title: "Moved Sketchpad to the Trash"; line: "3 items · 1.2 GB. Empty the Trash to lock it in."; isDismissible: true }
                Banner { width: 620; symbol: "exclamationmark.triangle.fill"; tint: "#fa9e3d"; title: "Couldn't move it."; line: "A line that is much longer than the strip is wide and so needs a second one, because it names a lot of files, one after the other"; isDismissible: true }
                Banner { width: 620; symbol: "info.circle.fill"; title: "Deleted iOS 16.4." }
            }
        }
        Row {
            spacing: 30
            Specimen { name: "icon buttons"; IconButton { symbol: "trash"; tint: Theme.destructive; text: "Uninstall" } }
            Specimen { name: "hovered"; IconButton { symbol: "trash"; tint: Theme.destructive; text: "Uninstall"; lift: 1 } }
            Specimen { name: "plain"; IconButton { symbol: "xmark"; isFilled: false; text: "Dismiss" } }
            Specimen { name: "menu"; MenuPicker { symbol: "arrow.up.arrow.down"; text: "Largest" } }
            Specimen { name: "spinner"; Spinner {} }
        }
    }
}
