import QtQuick 2.15
import "."

Rectangle {
    id: root

    property alias mouseArea: mouseArea

    color: Style.background

    Column {
        anchors.centerIn: parent
        spacing: Style.spaceLarge

        WidgetLogo {
            anchors.horizontalCenter: parent.horizontalCenter
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
