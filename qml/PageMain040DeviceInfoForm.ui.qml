import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

Rectangle {
    id: form

    property alias pageTitle: pageTitle
    property alias scrollArea: scrollArea
    property alias columns: columns
    property alias notice: notice
    property alias noticeCard: noticeCard
    property alias networkCard: networkCard
    property alias contentCard: contentCard
    property alias settings: settings
    property alias modeCard: modeCard
    property alias modeSettings: modeSettings
    property alias codedVideoCard: codedVideoCard
    property alias adaptiveAudioCard: adaptiveAudioCard
    property alias adaptiveGamingCard: adaptiveGamingCard
    property alias codedGamingCard: codedGamingCard
    property alias outputs: outputs
    property alias hapticCard: hapticCard
    property alias softwareCard: softwareCard

    color: Style.background

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

            GridLayout {
                id: columns
                columnSpacing: Style.spaceMedium
                rowSpacing: Style.spaceMedium

                ColumnLayout {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.alignment: Qt.AlignTop
                    spacing: Style.spaceMedium

                    WidgetCard {
                        id: noticeCard
                        Layout.fillWidth: true

                        WidgetNotice {
                            id: notice
                            objectName: "notice"
                            Layout.fillWidth: true
                        }
                    }

                    WidgetNetworkCard {
                        id: networkCard
                        objectName: "networkCard"
                        Layout.fillWidth: true
                    }

                    WidgetContentCard {
                        id: contentCard
                        objectName: "contentCard"
                        Layout.fillWidth: true
                    }

                    ColumnLayout {
                        id: settings
                        Layout.fillWidth: true
                        spacing: Style.spaceMedium

                        WidgetModeCard {
                            id: modeCard
                            objectName: "modeCard"
                            Layout.fillWidth: true
                        }

                        ColumnLayout {
                            id: modeSettings
                            Layout.fillWidth: true
                            spacing: Style.spaceMedium

                            WidgetCodedVideoCard {
                                id: codedVideoCard
                                objectName: "codedVideoCard"
                                Layout.fillWidth: true
                            }

                            WidgetAdaptiveAudioCard {
                                id: adaptiveAudioCard
                                objectName: "adaptiveAudioCard"
                                Layout.fillWidth: true
                            }

                            WidgetAdaptiveGamingCard {
                                id: adaptiveGamingCard
                                objectName: "adaptiveGamingCard"
                                Layout.fillWidth: true
                            }

                            WidgetCodedGamingCard {
                                id: codedGamingCard
                                objectName: "codedGamingCard"
                                Layout.fillWidth: true
                            }
                        }
                    }
                }

                ColumnLayout {
                    id: outputs
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.alignment: Qt.AlignTop
                    spacing: Style.spaceMedium

                    WidgetHapticCard {
                        id: hapticCard
                        objectName: "hapticCard"
                        Layout.fillWidth: true
                    }

                    WidgetSoftwareCard {
                        id: softwareCard
                        objectName: "softwareCard"
                        Layout.fillWidth: true
                    }
                }
            }
        }
    }
}
