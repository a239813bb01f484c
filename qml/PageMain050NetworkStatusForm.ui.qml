import QtQuick 2.15
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
        width: parent.width
    }

    WidgetCard {
        id: statusCard
        width: parent.width

        WidgetStatus {
            id: connection
            objectName: "connectionStatus"
            width: parent.width
        }

        WidgetStatus {
            id: accessPoint
            objectName: "accessPointStatus"
            width: parent.width
        }

        WidgetLabeledText {
            id: network
            objectName: "networkName"
            width: parent.width
        }
    }

    Repeater {
        id: interfaces

        WidgetNetworkInterface {
            required property var modelData

            width: parent.width
            networkInterface: modelData
        }
    }

    ButtonText {
        id: setUpButton
        objectName: "setUpButton"
        width: parent.width
    }

    ButtonText {
        id: resetButton
        objectName: "resetButton"
        width: parent.width
        primary: false
    }
}
