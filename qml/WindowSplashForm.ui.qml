import QtQuick 2.15
import "."

Rectangle {
    id: root

    property alias mouseArea: mouseArea

    color: Style.background

    Column {
        anchors.centerIn: parent
        spacing: Style.spaceLarge

        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            source: Style.logo
            sourceSize.width: 160
            sourceSize.height: 160
        }

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Orvex Quivera")
            color: Style.text
            font.family: Style.fontFamily
            font.pixelSize: Style.fontHeading
            font.letterSpacing: 1
        }
    }

    MouseArea {
        id: mouseArea
        anchors.fill: parent
    }
}
