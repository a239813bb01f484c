import QtQuick 2.15
import "."

// The bar on top of every page.
Rectangle {
    id: root

    property string title
    property string details

    implicitHeight: Math.max(Style.titleBarHeight, texts.implicitHeight + 2 * Style.spaceMedium)
    color: Style.surface

    Column {
        id: texts
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Style.spaceLarge
        spacing: Style.spaceTiny

        Text {
            width: parent.width
            text: root.title
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            color: Style.text
            font.family: Style.fontFamily
            font.pixelSize: Style.fontHeading
            font.letterSpacing: 1
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Text {
            width: parent.width
            visible: text.length > 0
            text: root.details
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            color: Style.textSecondary
            font.family: Style.fontFamily
            font.pixelSize: Style.fontSmall
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Style.outline
    }
}
