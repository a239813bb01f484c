import QtQuick 2.15
import QtQuick.Controls.Material 2.15
import QtQuick.Window 2.15
import "."

Window {
    id: root

    readonly property bool onWindows: Qt.platform.os === "windows"
    // Whether the user goes through the pages with keys, and wants to see where the focus is.
    property bool usesKeys: false

    width: onWindows ? Style.windowWidth : Screen.desktopAvailableWidth
    // A scaled screen may offer less than the window wants, and the frame around it takes its part.
    height: onWindows ? Math.min(Style.windowHeight, Screen.desktopAvailableHeight - Style.windowFrame) : Screen.desktopAvailableHeight
    visible: true
    title: qsTr("Orvex Quivera")
    color: Style.background

    Material.theme: Material.Dark
    Material.accent: Style.accent
    Material.primary: Style.primary

    // Read and made behind the splash, once that is to be seen: the first frame does not wait for it.
    Loader {
        id: mainWindow

        function load() {
            if (status === Loader.Null) {
                setSource("WindowMain.qml", {
                    inSetup: Qt.binding(() => setupWindow.inSetup)
                });
            }
        }

        anchors.fill: parent
        focus: true
        visible: !setupWindow.visible
    }

    Connections {
        target: mainWindow.item

        function onAddDevice() {
            setupWindow.open();
        }
    }

    Connections {
        target: root
        enabled: mainWindow.status === Loader.Null

        // Only after the frame is done with: within it, it would not be on the screen yet.
        function onFrameSwapped() {
            Qt.callLater(mainWindow.load);
        }
    }

    Connections {
        target: deviceListModel

        // Told once: also where no frame has been drawn yet.
        function onAutomaticDeviceSelect() {
            mainWindow.load();
            mainWindow.item.selectAutomatically();
        }
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

    Connections {
        target: mainWindow.item ? mainWindow.item.stack : null

        function onStepped() {
            pressGuard.guard();
        }
    }

    Connections {
        target: setupWindow.item ? setupWindow.item.stack : null

        function onStepped() {
            pressGuard.guard();
        }
    }

    WindowSplash {
        anchors.fill: parent
        onVisibleChanged: pressGuard.guard()
    }

    WidgetPressGuard {
        id: pressGuard
        anchors.fill: parent
    }
}
