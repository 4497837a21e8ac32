import QtQuick

/// Text of one line or more in the program's own fonts.
Text {
    property real size: 13

    color: "white"
    font.family: "Inter"
    font.pixelSize: size
    textFormat: Text.PlainText
}
