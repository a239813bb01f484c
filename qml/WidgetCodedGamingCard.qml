import QtQuick 2.15
import "."

// The settings of the mode for coded games.
WidgetCard {
    id: root

    property alias companion: companion

    title: qsTr("ORVEX Coded Gaming Configuration")

    WidgetCompanion {
        id: companion
        objectName: "codedGamingApp"
        width: parent.width
        buttonText: qsTr("Open Game Center")
        hint: qsTr("Open Orvex Game Center on your PC.")
    }
}
