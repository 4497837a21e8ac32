pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

Page {
    Column {
        spacing: 34

        ScreenHeader { title: "Overview"; subtitle: "Free up space, safely" }
        ScreenHeader { title: "Without a subtitle" }
        ScreenHeader {
            width: 260
            title: "A title that is far too long for its place"
            subtitle: "Green is safe and pre-ticked. Nothing goes until you hit Clean Up."
        }
        Row {
            spacing: 60
            Specimen { name: "counted up"; CountUpBytes { target: 212480000000; size: 54 } }
            Specimen { name: "nothing"; CountUpBytes { target: 0 } }
            Specimen { name: "below nothing"; CountUpBytes { target: -5 } }
            Specimen { name: "1 byte"; CountUpBytes { target: 1; duration: 0; size: 24 } }
            Specimen { name: "much"; CountUpBytes { target: 111111111111111; size: 24 } }
        }
        Row {
            spacing: 40
            Repeater {
                model: [Font.Light, Font.Normal, Font.Medium, Font.DemiBold, Font.Bold, Font.Black]
                Specimen {
                    id: face
                    required property int modelData
                    name: "weight " + modelData
                    Column {
                        spacing: 6
                        Label { text: "Tidewell 0123"; size: 18; weight: face.modelData }
                        Label { text: "Tidewell 0123"; size: 18; weight: face.modelData; isRounded: true }
                        FigureText { text: "1,117.44 GB"; size: 18; weight: face.modelData }
                        FigureText { text: "8,080.00 GB"; size: 18; weight: face.modelData }
                    }
                }
            }
        }
        Row {
            spacing: 50
            BrandLogo { height: 64 }
            BrandLogo { height: 28 }
            BrandLogo { height: 64; asset: BrandLogo.Mark }
            BrandLogo { height: 20; asset: BrandLogo.Mark }
        }
    }
}
