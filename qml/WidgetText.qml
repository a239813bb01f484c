import QtQuick 2.15
import "."

// Text as it stands on cards: never markup, and wrapped rather than cut.
Text {
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    color: Style.text
    font.family: Style.fontFamily
    font.pixelSize: Style.fontBody
}
