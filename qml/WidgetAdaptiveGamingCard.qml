import QtQuick 2.15
import "."

// The settings of the mode that makes motion from a game's input.
WidgetCard {
    id: root

    property alias companion: companion
    property string profile

    title: qsTr("Adaptive Gaming Configuration")

    WidgetText {
        width: parent.width
        text: qsTr("Selected Profile:")
    }

    WidgetText {
        objectName: "profileName"
        width: parent.width
        text: root.profile.length > 0 ? root.profile : qsTr("No Profile selected")
        maximumLineCount: 2
        elide: Text.ElideRight
        color: root.profile.length > 0 ? Style.text : Style.textSecondary
        font.weight: root.profile.length > 0 ? Font.Medium : Font.Normal
    }

    WidgetCompanion {
        id: companion
        objectName: "adaptiveGamingApp"
        width: parent.width
        buttonText: qsTr("Open Adaptive Gaming Configurator")
        hint: qsTr("Open Orvex Adaptive Gaming Configurator on your PC.")
    }
}
