import QtQuick 2.15
import "."

// Brings a unit that is not on a network yet onto one. Shown over the main window.
WindowSetupForm {
    id: root

    property bool inSetup: false

    signal setupDone

    readonly property bool isJoining: stack.currentId === "pageSetup050WaitForConnect"

    function startSetup() {
        inSetup = true;
        stack.popTo("");
        if (!currDevice.hotspotActive) {
            stack.show("pageSetup010WaitForDevice");
        } else if (currDevice.wiFiPoints.length > 0) {
            stack.show("pageSetup030WiFiList");
        } else {
            stack.show("pageSetup020WaitWiFiList");
        }
        deviceManager.startDeviceSetup();
    }

    function finishSetup() {
        inSetup = false;
        stack.popTo("");
        root.setupDone();
    }

    function choose(index) {
        const name = currDevice.wiFiPoints[index].name;
        deviceManager.goIdle();
        const page = stack.page("pageSetup040WiFiPassword");
        page.wiFiName = name;
        page.forget();
        stack.show("pageSetup040WiFiPassword");
    }

    function join() {
        const page = stack.page("pageSetup040WiFiPassword");
        deviceManager.connectDeviceToWiFi(page.wiFiName, page.passwordText);
        page.forget();
        stack.show("pageSetup050WaitForConnect");
        patience.restart();
    }

    function goBack() {
        const canTryAgain = ["pageSetup040WiFiPassword", "pageSetup060Error"].includes(stack.currentId);
        if (canTryAgain && currDevice.online) {
            deviceManager.showingWiFiList();
            stack.popTo("pageSetup030WiFiList");
        } else {
            root.finishSetup();
        }
    }

    function page(source, properties, handlers) {
        return {
            source: source,
            properties: Object.assign({
                showsTitle: false
            }, properties),
            handlers: Object.assign({
                buttonBackClicked: root.goBack
            }, handlers)
        };
    }

    // While the unit is being searched for, the one that was opened last is still selected.
    pageTitle.title: stack.currentId === "pageSetup010WaitForDevice" || currDevice.name.length === 0 ? qsTr("Add Quivera Device") : currDevice.name
    pageTitle.details: qsTr("NETWORK SETUP")
    pageTitle.canGoBack: inSetup
    pageTitle.onButtonBackClicked: root.goBack()

    stack.pages: ({
            pageSetup010WaitForDevice: page("PageSetup010WaitForDevice.qml"),
            pageSetup020WaitWiFiList: page("PageGenericWait.qml", {
                text: qsTr("Quivera device is\nsearching for Wi-Fi...")
            }),
            pageSetup030WiFiList: page("PageWiFiList.qml", {
                networks: Qt.binding(() => currDevice.wiFiPoints)
            }, {
                wiFiClicked: root.choose
            }),
            pageSetup040WiFiPassword: page("PageWiFiPassword.qml", {}, {
                nextClicked: root.join
            }),
            pageSetup050WaitForConnect: page("PageGenericWait.qml", {
                text: qsTr("Waiting for\nQuivera device\nto connect to\nyour network..."),
                notes: qsTr("Please connect this computer to the same network as well.")
            }),
            pageSetup060Error: page("PageGenericDialog.qml", {
                text: qsTr("Quivera device cannot connect to your network.\nTap the 'Back' button above and try selecting the network again."),
                symbol: Style.symbolError
            }),
            pageSetup060Success: page("PageGenericDialog.qml", {
                text: qsTr("Your Quivera device\nsuccessfully connected\nto your network."),
                symbol: Style.symbolGood,
                button1Text: qsTr("Done")
            }, {
                button1Clicked: root.finishSetup
            })
        })

    Component.onCompleted: stack.push(beginning)
    onIsJoiningChanged: {
        if (!isJoining) {
            patience.stop();
        }
    }

    Item {
        id: beginning
        visible: false
    }

    Connections {
        target: currDevice

        function onWiFiPointsChanged() {
            const waits = ["pageSetup010WaitForDevice", "pageSetup020WaitWiFiList"].includes(root.stack.currentId);
            if (root.inSetup && waits && currDevice.wiFiPoints.length > 0) {
                root.stack.show("pageSetup030WiFiList");
            }
        }

        function onWiFiSetUp(success) {
            if (root.inSetup && root.isJoining) {
                root.stack.show(success ? "pageSetup060Success" : "pageSetup060Error");
            }
        }
    }

    Timer {
        id: patience
        objectName: "setupConnectTimer"
        interval: 60000
        onTriggered: {
            deviceManager.goIdle();
            root.stack.show("pageSetup060Error");
        }
    }
}
