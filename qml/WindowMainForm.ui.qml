import QtQuick 2.15

Item {
    property alias stack: stack

    PageStack {
        id: stack
        anchors.fill: parent
        windowName: "WindowMain"
    }
}
