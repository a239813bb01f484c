import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

Rectangle {
    id: form

    property alias pageTitle: pageTitle
    property alias scrollArea: scrollArea
    property alias columns: columns
    property alias mainColumn: mainColumn
    property alias notice: notice
    property alias noticeCard: noticeCard
    property alias networkCard: networkCard
    property alias contentCard: contentCard
    property alias settings: settings
    property alias modeCard: modeCard
    property alias modeSettings: modeSettings
    property alias outputs: outputs
    property alias hapticCard: hapticCard
    property alias softwareCard: softwareCard

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

        WidgetScrollArea {
            id: scrollArea
            objectName: "scrollArea"
            Layout.fillWidth: true
            Layout.fillHeight: true
            maximumContentWidth: Style.wideContentWidth

            Item {
                id: columns
                height: childrenRect.height

                Column {
                    id: mainColumn
                    spacing: Style.spaceMedium

                    WidgetCard {
                        id: noticeCard
                        width: parent.width

                        WidgetNotice {
                            id: notice
                            objectName: "notice"
                            width: parent.width
                        }
                    }

                    WidgetNetworkCard {
                        id: networkCard
                        objectName: "networkCard"
                        width: parent.width
                    }

                    WidgetContentCard {
                        id: contentCard
                        objectName: "contentCard"
                        width: parent.width
                    }

                    Column {
                        id: settings
                        width: parent.width
                        spacing: Style.spaceMedium

                        WidgetModeCard {
                            id: modeCard
                            objectName: "modeCard"
                            width: parent.width
                        }

                        Loader {
                            id: modeSettings
                            width: parent.width
                        }
                    }
                }

                Column {
                    id: outputs
                    spacing: Style.spaceMedium

                    WidgetHapticCard {
                        id: hapticCard
                        objectName: "hapticCard"
                        width: parent.width
                    }

                    WidgetSoftwareCard {
                        id: softwareCard
                        objectName: "softwareCard"
                        width: parent.width
                    }
                }
            }
        }
    }
}
