import QtQuick 2.15
import "."

// Text as it stands on cards: never markup, and wrapped rather than cut. Where a control has it as its own name or
// description, it is to be ignored by those who are read the page.
Text {
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    // Also where a unit's name is written from right to left: the page around it is not.
    horizontalAlignment: Text.AlignLeft
    color: Style.text
    font.family: Style.fontFamily
    font.pixelSize: Style.fontBody
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
