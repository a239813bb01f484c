import QtQuick 2.15
import QtQuick.Controls.Material 2.15
import QtQuick.Window 2.15
import "."

Window {
    id: root

    readonly property bool onWindows: Qt.platform.os === "windows"

    width: onWindows ? Style.windowWidth : Screen.desktopAvailableWidth
    height: onWindows ? Style.windowHeight : Screen.desktopAvailableHeight
    visible: true
    title: qsTr("Orvex Quivera")
    color: Style.background

    Material.theme: Material.Dark
    Material.accent: Style.accent
    Material.primary: Style.primary

    WindowMain {
        anchors.fill: parent
        visible: !setupWindow.visible
        inSetup: setupWindow.inSetup
        onAddDevice: setupWindow.open()
    }

    // Made when the first unit is set up: most starts never need it.
    Loader {
        id: setupWindow

        readonly property bool inSetup: status === Loader.Ready && item.inSetup

        function open() {
            active = true;
            visible = true;
            forceActiveFocus();
            item.startSetup();
        }

        anchors.fill: parent
        active: false
        visible: false
        source: "WindowSetup.qml"
    }

    Connections {
        target: setupWindow.item

        function onSetupDone() {
            setupWindow.visible = false;
            deviceManager.activateDeviceList();
        }
    }

    WindowSplash {
        anchors.fill: parent
    }
}
