import QtQuick 2.15

// The pages of the program and the ways between them.
WindowMainForm {
    id: root

    function showDeviceList() {
        console.info("WindowMain: pageMain010DeviceList");
        deviceManager.activateDeviceList();
        stack.pop(null);
    }

    Component.onCompleted: root.stack.push(pageMain010DeviceList)

    PageMain010DeviceList {
        id: pageMain010DeviceList
        objectName: "pageMain010DeviceList"
        visible: false
        model: deviceListModel
    }
}
