import QtQuick 2.15
import "."

// How a unit is connected, and the ways to change that.
PageMain050NetworkStatusForm {
    id: root

    signal buttonResetClicked
    signal buttonSetUpClicked

    readonly property bool isConnected: currDevice.networkInterfaces.some(entry => entry.active)

    title: currDevice.name
    details: qsTr("NETWORK STATUS")

    statusNotice.visible: !currDevice.networkStatusValid
    statusNotice.isWaiting: visible
    statusNotice.text: qsTr("The network status is not known yet. Waiting for the device to report it...")

    statusCard.visible: currDevice.networkStatusValid
    statusCard.title: qsTr("Connection")
    connection.statusType: isConnected ? 3 : 1
    connection.text: isConnected ? qsTr("Connected to the network") : qsTr("Not connected to a network")
    accessPoint.visible: currDevice.hotspotActive
    accessPoint.statusType: 2
    accessPoint.text: qsTr("The access point of the device is on: it waits to be set up")
    network.visible: currDevice.ssid.length > 0
    network.label: qsTr("Wi-Fi Network")
    network.text: currDevice.ssid
    network.symbol: Style.symbolWiFi

    interfaces.model: currDevice.networkStatusValid ? currDevice.networkInterfaces : []

    setUpButton.text: qsTr("Set Up Wi-Fi")
    setUpButton.symbol: Style.symbolWiFiOnAccent
    setUpButton.enabled: currDevice.online
    setUpButton.onClicked: root.buttonSetUpClicked()
    resetButton.text: qsTr("Reset Network Settings")
    resetButton.enabled: currDevice.online
    resetButton.onClicked: root.buttonResetClicked()
}
