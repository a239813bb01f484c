import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

Rectangle {
    property alias pageTitle: pageTitle
    property alias filter: filter
    property alias allWell: allWell
    property alias list: list
    property alias notice: notice

    color: Style.background
    Accessible.role: Accessible.Pane
    Accessible.name: pageTitle.title

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        WidgetPageTitle {
            id: pageTitle
            Layout.fillWidth: true
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ColumnLayout {
                anchors.top: parent.top
                anchors.topMargin: Style.spaceMedium
                anchors.bottom: parent.bottom
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width - 2 * Style.spaceMedium, Style.wideContentWidth)
                spacing: Style.spaceSmall

                WidgetComboBox {
                    id: filter
                    objectName: "statusFilter"
                    Layout.fillWidth: true
                }

                WidgetStatus {
                    id: allWell
                    objectName: "allWell"
                    Layout.leftMargin: Style.spaceSmall
                }

                Item {
                    Layout.fillWidth: true
                    Layout.fillHeight: true

                    WidgetList {
                        id: list
                        objectName: "statusList"
                        anchors.fill: parent
                    }

                    WidgetNotice {
                        id: notice
                        objectName: "statusNotice"
                        anchors.centerIn: parent
                        width: Math.min(parent.width - 2 * Style.spaceMedium, Style.contentWidth)
                    }
                }
            }
        }
    }
}
