import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

PageFrame {
    property alias statusNotice: statusNotice
    property alias statusCard: statusCard
    property alias connection: connection
    property alias network: network
    property alias accessPoint: accessPoint
    property alias interfaces: interfaces
    property alias setUpButton: setUpButton
    property alias resetButton: resetButton

    WidgetNotice {
        id: statusNotice
        Layout.fillWidth: true
        Layout.topMargin: Style.spaceLarge
        Layout.bottomMargin: Style.spaceLarge
    }

    WidgetCard {
        id: statusCard
        Layout.fillWidth: true

        WidgetStatus {
            id: connection
            objectName: "connectionStatus"
            Layout.fillWidth: true
        }

        WidgetStatus {
            id: accessPoint
            objectName: "accessPointStatus"
            Layout.fillWidth: true
        }

        WidgetLabeledText {
            id: network
            objectName: "networkName"
            Layout.fillWidth: true
        }
    }

    Repeater {
        id: interfaces

        WidgetNetworkInterface {
            required property var modelData

            Layout.fillWidth: true
            networkInterface: modelData
        }
    }

    ButtonText {
        id: setUpButton
        objectName: "setUpButton"
        Layout.fillWidth: true
        Layout.topMargin: Style.spaceSmall
    }

    ButtonText {
        id: resetButton
        objectName: "resetButton"
        Layout.fillWidth: true
        primary: false
    }
}
