import QtQuick 2.15
import "."

// How the unit's programs are, and what to do about one that is not well.
WidgetCard {
    id: root

    property var programs: []

    visible: programs.length > 0
    title: qsTr("Software Health")

    Repeater {
        model: root.programs

        Column {
            id: entry

            required property var modelData

            objectName: "program"
            width: parent.width
            spacing: Style.spaceTiny

            WidgetText {
                width: parent.width
                text: entry.modelData.softwareName
                maximumLineCount: 2
                elide: Text.ElideRight
            }

            WidgetStatus {
                width: parent.width
                statusType: entry.modelData.status
                text: entry.modelData.statusMessage.length > 0 ? entry.modelData.statusMessage : look.meaning
            }

            WidgetText {
                objectName: "programHint"
                visible: text.length > 0
                width: parent.width
                text: entry.modelData.errorHintMessage
                color: Style.textSecondary
                font.pixelSize: Style.fontSmall
            }
        }
    }
}
