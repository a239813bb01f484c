import QtQuick 2.15

// The pages of the program and the ways between them. Which page is on top decides what is polled.
WindowMainForm {
    id: root

    // Whether a unit is being set up in the window above.
    property bool inSetup: false

    signal addDevice

    // Pages of a unit that answers. Where the user waits for it, or is told how that ended, an offline unit is expected.
    readonly property var onlinePages: ["pageMain050NetworkStatus", "pageMain051NetworkReset", "pageMain060WiFiWaitList", "pageMain061WiFiList", "pageMain062WiFiPassword", "pageMain065WiFiSameNetwork", "pageMain070DeviceAbout", "pageMain071DeviceRename", "pageMain076DetailedStatus", "pageMain080MediaList"]

    function showDeviceList() {
        stack.popTo("pageMain010DeviceList");
        deviceManager.activateDeviceList();
    }

    function showDevice() {
        deviceManager.showingDeviceInfo();
        stack.show("pageMain040DeviceInfo");
    }

    function returnToDevice() {
        deviceManager.showingDeviceInfo();
        stack.popTo("pageMain040DeviceInfo");
    }

    function openDevice(index) {
        deviceManager.selectDevice(index);
        if (currDevice.hotspotActive) {
            root.addDevice();
        } else {
            root.showDevice();
        }
    }

    // Opens the one unit there is, unless the user is elsewhere already.
    function selectAutomatically() {
        if (stack.currentId === "pageMain010DeviceList" && !inSetup) {
            deviceManager.selectDevice(0);
            root.showDevice();
        }
    }

    function showAbout() {
        deviceManager.showingDeviceVersions();
        stack.show("pageMain070DeviceAbout");
    }

    function showNetworkStatus() {
        deviceManager.showingNetworkStatus();
        stack.show("pageMain050NetworkStatus");
    }

    function showMediaList() {
        deviceManager.showingMediaList();
        stack.page("pageMain080MediaList").filterText = "";
        stack.show("pageMain080MediaList");
    }

    function showDetailedStatus() {
        deviceManager.showingDetailedStatusInfo();
        stack.show("pageMain076DetailedStatus");
    }

    function showRename() {
        deviceManager.goIdle();
        stack.page("pageMain071DeviceRename").inputText = currDevice.name;
        stack.show("pageMain071DeviceRename");
    }

    function rename() {
        const name = stack.page("pageMain071DeviceRename").inputText;
        if (name.length === 0 || name === currDevice.name) {
            root.leaveRename();
            return;
        }
        currDevice.name = name;
        stack.popTo("pageMain070DeviceAbout");
    }

    function leaveRename() {
        deviceManager.showingDeviceVersions();
        stack.popTo("pageMain070DeviceAbout");
    }

    stack.pages: Object.assign({
        pageMain040DeviceInfo: {
            source: "PageMain040DeviceInfo.qml",
            handlers: {
                buttonBackClicked: root.showDeviceList,
                aboutRequested: root.showAbout,
                networkStatusRequested: root.showNetworkStatus,
                mediaListRequested: root.showMediaList,
                detailedStatusRequested: root.showDetailedStatus
            }
        },
        pageMain050NetworkStatus: {
            source: "PageMain050NetworkStatus.qml",
            handlers: {
                buttonBackClicked: root.returnToDevice,
                buttonResetClicked: reset.ask,
                buttonSetUpClicked: wiFi.showNetworks
            }
        },
        pageMain070DeviceAbout: {
            source: "PageMain070DeviceAbout.qml",
            handlers: {
                buttonBackClicked: root.returnToDevice,
                buttonRightClicked: root.showRename
            }
        },
        pageMain071DeviceRename: {
            source: "PageGenericInput.qml",
            properties: {
                title: qsTr("CHANGE DEVICE NAME"),
                details: Qt.binding(() => currDevice.name),
                text: qsTr("Enter new name"),
                // The longest name that a unit takes has as many bytes.
                maximumLength: 128
            },
            handlers: {
                buttonBackClicked: root.leaveRename,
                buttonDoneClicked: root.rename
            }
        },
        pageMain076DetailedStatus: {
            source: "PageMain076DetailedStatus.qml",
            handlers: {
                buttonBackClicked: root.returnToDevice
            }
        },
        pageMain080MediaList: {
            source: "PageMain080MediaList.qml",
            handlers: {
                buttonBackClicked: root.returnToDevice
            }
        }
    }, reset.pages, wiFi.pages)

    Component.onCompleted: {
        root.stack.push(pageMain010DeviceList);
        root.stack.preload();
    }
    onVisibleChanged: {
        if (visible) {
            stack.focusPage(null);
        }
    }

    PageMain010DeviceList {
        id: pageMain010DeviceList
        objectName: "pageMain010DeviceList"
        visible: false
        model: deviceListModel
        onAddDevice: root.addDevice()
        onDeviceTapped: root.openDevice(index)
    }

    WindowMainReset {
        id: reset
        stack: root.stack
        onFinished: root.showDeviceList()
    }

    WindowMainWiFi {
        id: wiFi
        stack: root.stack
        onFinished: root.showDeviceList()
    }

    Connections {
        target: currDevice

        function onOnlineChanged() {
            if (!currDevice.online && root.onlinePages.includes(root.stack.currentId)) {
                root.returnToDevice();
                // A key that was meant for the page that went must not press anything.
                root.stack.focusPage(null);
            }
        }
    }

    Connections {
        target: Qt.application

        function onStateChanged() {
            if (Qt.application.state === Qt.ApplicationActive && root.stack.currentId === "pageMain040DeviceInfo") {
                deviceManager.triggerSubscriptionAndContentUpdate();
            }
        }
    }

}
