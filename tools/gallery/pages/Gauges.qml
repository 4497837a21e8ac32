pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

Page {
    Column {
        spacing: 56

        Row {
            spacing: 70
            Repeater {
                model: [0.57, 0, 1, 0.08]
                Specimen {
                    id: dots
                    required property real modelData
                    name: "dots " + modelData
                    DotGauge {
                        used: dots.modelData
                        Column {
                            anchors.centerIn: parent
                            FigureText { text: Math.round(dots.modelData * 100) + "%"; size: 30; weight: Font.Bold; isRounded: true }
                            Label { anchors.horizontalCenter: parent.horizontalCenter; text: "used"; size: 12; color: Theme.secondary }
                        }
                    }
                }
            }
        }
        Row {
            spacing: 60
            Repeater {
                model: [-1, 0.07, 0.5, 0.97, 1, 2]
                Specimen {
                    id: ring
                    required property real modelData
                    name: "ring " + modelData
                    RingGauge {
                        diameter: 130
                        progress: ring.modelData
                        FigureText { anchors.centerIn: parent; text: Math.round(ring.modelData * 100) + "%"; size: 26; weight: Font.Bold }
                    }
                }
            }
        }
        Row {
            spacing: 60
            Repeater {
                model: [0, 0.07, 0.5, 0.97, 1]
                Specimen {
                    id: donut
                    required property real modelData
                    Ambient.palette: Kit.violet
                    name: "donut " + modelData
                    Donut {
                        diameter: 130
                        lineWidth: 14
                        used: donut.modelData
                        Label { anchors.centerIn: parent; text: "Apps"; weight: Font.DemiBold }
                    }
                }
            }
            Specimen {
                name: "segments"
                Item {
                    width: 130
                    height: 130
                    Repeater {
                        model: [Kit.green, Kit.violet, Kit.blue, Kit.amber]
                        RingArc {
                            required property int index
                            required property sectionPalette modelData
                            diameter: 130
                            lineWidth: 9
                            sectionPalette: modelData
                            start: index / 4 + 0.02
                            span: 0.21
                            fill: [1, 1, 0.6, 0][index]
                        }
                    }
                }
            }
        }
        Row {
            spacing: 40
            Repeater {
                model: [0, 0.003, 0.3, 0.72, 1, 3]
                Specimen {
                    id: bar
                    required property real modelData
                    required property int index
                    name: "bar " + modelData
                    GradientBar {
                        width: 160
                        height: bar.index % 2 ? 4 : 8
                        fraction: bar.modelData
                        sectionPalette: [Kit.green, Kit.blue, Kit.violet, Kit.amber, Kit.cyan, Kit.teal][bar.index]
                    }
                }
            }
        }
    }
}
