import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

Rectangle {
    property alias pageTitle: pageTitle
    property alias stack: stack

    color: Style.background

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        WidgetPageTitle {
            id: pageTitle
            Layout.fillWidth: true
        }

        PageStack {
            id: stack
            Layout.fillWidth: true
            Layout.fillHeight: true
            windowName: "WindowSetup"
        }
    }
}
