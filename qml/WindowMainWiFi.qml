import QtQuick 2.15
import "."

// The way of a unit to another Wi-Fi network.
Item {
    id: root

    property PageStack stack

    // The unit is on the network, or the user waits for it no longer.
    signal finished

    function showNetworks() {
        deviceManager.showingWiFiList();
        stack.show(currDevice.wiFiPoints.length > 0 ? "pageMain061WiFiList" : "pageMain060WiFiWaitList");
    }

    function returnToNetworks() {
        deviceManager.showingWiFiList();
        stack.popTo("pageMain061WiFiList");
    }

    function leave() {
        deviceManager.showingNetworkStatus();
        stack.popTo("pageMain050NetworkStatus");
    }

    function choose(index) {
        const name = currDevice.wiFiPoints[index].name;
        deviceManager.goIdle();
        if (name === currDevice.ssid) {
            stack.show("pageMain065WiFiSameNetwork");
            return;
        }
        const page = stack.page("pageMain062WiFiPassword");
        page.wiFiName = name;
        page.forget();
        stack.show("pageMain062WiFiPassword");
    }

    function join() {
        const page = stack.page("pageMain062WiFiPassword");
        deviceManager.connectDeviceToWiFi(page.wiFiName, page.passwordText);
        page.forget();
        stack.show("pageMain064WiFiWaitConnect");
    }

    function page(more) {
        return Object.assign({
            title: Qt.binding(() => currDevice.name),
            details: qsTr("NETWORK SETUP")
        }, more);
    }

    readonly property bool isJoining: stack.currentId === "pageMain064WiFiWaitConnect"
    readonly property var pages: ({
            pageMain060WiFiWaitList: {
                source: "PageGenericWait.qml",
                properties: page({
                    text: qsTr("Quivera device is\nsearching for Wi-Fi")
                }),
                handlers: {
                    buttonBackClicked: root.leave
                }
            },
            pageMain061WiFiList: {
                source: "PageWiFiList.qml",
                properties: page({
                    networks: Qt.binding(() => currDevice.wiFiPoints)
                }),
                handlers: {
                    buttonBackClicked: root.leave,
                    wiFiClicked: root.choose
                }
            },
            pageMain062WiFiPassword: {
                source: "PageWiFiPassword.qml",
                properties: page(),
                handlers: {
                    buttonBackClicked: root.returnToNetworks,
                    nextClicked: root.join
                }
            },
            pageMain064WiFiWaitConnect: {
                source: "PageGenericWait.qml",
                properties: page({
                    text: qsTr("Waiting for your Quivera device to appear on selected network"),
                    notes: qsTr("Please connect this device to the same network that you selected for your Quivera device")
                }),
                handlers: {
                    buttonBackClicked: root.finished
                }
            },
            pageMain065WiFiSameNetwork: {
                source: "PageGenericDialog.qml",
                properties: page({
                    text: qsTr("Quivera device is already connected to selected network.\nTap the 'Back' button above and select another network."),
                    symbol: Style.symbolInfo
                }),
                handlers: {
                    buttonBackClicked: root.returnToNetworks
                }
            },
            pageMain066WiFiConnectError: {
                source: "PageGenericDialog.qml",
                properties: page({
                    text: qsTr("Quivera device cannot connect to selected network.\nTap the 'Back' button above and try selecting the network again."),
                    symbol: Style.symbolError
                }),
                handlers: {
                    buttonBackClicked: root.returnToNetworks
                }
            },
            pageMain067WiFiConnectSuccess: {
                source: "PageGenericDialog.qml",
                properties: page({
                    text: qsTr("Your Quivera device\nsuccessfully connected\nto selected network."),
                    symbol: Style.symbolGood,
                    button1Text: qsTr("Done"),
                    canGoBack: false
                }),
                handlers: {
                    button1Clicked: root.finished
                }
            }
        })

    onIsJoiningChanged: {
        if (!isJoining) {
            patience.stop();
        }
    }

    Connections {
        target: currDevice

        function onWiFiPointsChanged() {
            if (currDevice.wiFiPoints.length > 0 && root.stack.currentId === "pageMain060WiFiWaitList") {
                root.stack.show("pageMain061WiFiList");
            }
        }

        function onWiFiSetUp(success) {
            if (root.isJoining) {
                root.stack.show(success ? "pageMain067WiFiConnectSuccess" : "pageMain066WiFiConnectError");
            }
        }
    }

    // The user comes back from connecting this computer to the unit's new network.
    Connections {
        target: Qt.application

        function onStateChanged() {
            if (Qt.application.state === Qt.ApplicationActive && root.isJoining) {
                patience.restart();
            }
        }
    }

    Timer {
        id: patience
        objectName: "wiFiConnectTimer"
        interval: 40000
        onTriggered: {
            deviceManager.goIdle();
            root.stack.show("pageMain066WiFiConnectError");
        }
    }
}
