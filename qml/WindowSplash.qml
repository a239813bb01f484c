import QtQuick 2.15

// Covers the window while the first units are being found.
WindowSplashForm {
    id: root

    property int showDuration: 2500

    function dismiss() {
        timer.stop();
        root.visible = false;
    }

    Component.onCompleted: timer.start()
    mouseArea.onClicked: root.dismiss()

    Timer {
        id: timer
        interval: root.showDuration
        onTriggered: root.dismiss()
    }
}
