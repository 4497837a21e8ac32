import QtQuick
import Tidewell

/// A byte figure that counts up once, when it appears. A new target shows at once as far as the
/// count has come.
Row {
    id: root

    property double target: 0
    /// In seconds.
    property double duration: 1.1
    property real size: 40
    property int weight: Font.Bold
    property color color: Theme.text

    /// Share of the duration that has passed.
    property real passed
    readonly property bool finished: passed >= 1
    readonly property string shown: Kit.byteText(Math.trunc((1 - Math.pow(1 - passed, 3)) * target))
    readonly property int unitAt: shown.lastIndexOf(" ")

    readonly property bool counts: duration > 0 && Motion.hasPassages

    spacing: size * 0.16
    Accessible.role: Accessible.StaticText
    Accessible.name: Kit.byteText(target)

    Component.onCompleted: if (!counts) passed = 1
    onCountsChanged: if (!counts) passed = 1

    NumberAnimation on passed {
        from: 0
        to: 1
        duration: Math.max(0, root.duration) * 1000
        running: root.counts && !root.finished
    }

    FigureText {
        id: figure
        text: root.shown.slice(0, root.unitAt)
        size: root.size
        weight: root.weight
        color: root.color
        moves: !root.finished
        Accessible.ignored: true
    }
    Label {
        y: figure.ascent - baselineOffset
        text: root.shown.slice(root.unitAt + 1)
        size: root.size / 2
        weight: Font.DemiBold
        color: Theme.withOpacity(root.color, 0.62)
        Accessible.ignored: true
    }
}
