import QtQuick 2.15
import "."
import "Texts.js" as Texts

// Whether and how the unit is connected.
WidgetCard {
    id: root

    property bool online: false
    property bool statusValid: false
    property string ssid
    property var interfaces: []

    readonly property var activeInterfaces: statusValid ? interfaces.filter(entry => entry.active) : []

    title: qsTr("Network")
    infoName: qsTr("Network status")
    infoDescription: qsTr("Shows the network status and its settings")

    WidgetStatus {
        objectName: "onlineStatus"
        width: parent.width
        statusType: root.online ? 3 : 1
        text: root.online ? qsTr("Device Online") : qsTr("Device Offline")
    }

    WidgetText {
        visible: root.activeInterfaces.length > 0 && root.ssid.length > 0
        width: parent.width
        text: Texts.fill(qsTr("%1: %2"), qsTr("Wi-Fi Network"), Texts.inOneLine(Texts.isolate(root.ssid)))
        maximumLineCount: 2
        elide: Text.ElideRight
        color: Style.textSecondary
    }

    Repeater {
        model: root.activeInterfaces

        WidgetText {
            required property var modelData

            width: parent.width
            text: Texts.fill(qsTr("%1: %2"), modelData.name, modelData.ip)
            maximumLineCount: 2
            elide: Text.ElideRight
            color: Style.textSecondary
        }
    }
}
