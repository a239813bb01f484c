import QtQuick 2.15
import "."

// The unit's library of titles, and whether it is up to date.
WidgetCard {
    id: root

    property int updateType: 0
    property string updateText
    property string updateTime

    title: qsTr("Content")

    WidgetStatus {
        objectName: "contentUpdateState"
        width: parent.width
        statusType: root.updateType
        text: root.updateText
    }

    WidgetText {
        objectName: "lastUpdated"
        width: parent.width
        text: qsTr("Last Updated: %1").arg(root.updateTime)
        color: Style.textSecondary
    }
}
