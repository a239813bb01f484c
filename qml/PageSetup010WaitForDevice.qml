import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// How to reach a unit that is not on a network yet, until it is found.
PageFrame {
    id: root

    // What a unit calls its own access point, and what lets one in.
    readonly property string accessPointName: "Orvex-xxxx"
    readonly property string accessPointPassword: "tqvn5820"
    // A line may not break within it.
    readonly property string unbrokenName: accessPointName.replace("-", "-\u2060")

    readonly property var steps: [qsTr("Open the Wi-Fi settings of this computer."), qsTr("Join the network whose name begins with \"%1\".").arg(unbrokenName), qsTr("Enter the password \"%1\".").arg(accessPointPassword), qsTr("Return to this application.")]

    maximumContentWidth: Style.formWidth
    spacing: Style.spaceLarge
    initialFocus: introduction

    WidgetText {
        id: introduction
        width: parent.width
        text: qsTr("Switch on your Quivera device, then connect this computer to it:")
        font.pixelSize: Style.fontTitle
    }

    WidgetCard {
        width: parent.width

        Repeater {
            model: root.steps

            RowLayout {
                required property string modelData
                required property int index

                width: parent.width
                spacing: Style.spaceMedium
                Accessible.role: Accessible.ListItem
                Accessible.name: qsTr("%1. %2").arg(index + 1).arg(modelData)

                Rectangle {
                    Layout.alignment: Qt.AlignTop
                    implicitWidth: Style.stepSize
                    implicitHeight: Style.stepSize
                    radius: Style.stepSize / 2
                    color: Style.surfacePressed

                    WidgetText {
                        anchors.centerIn: parent
                        text: index + 1
                        color: Style.accent
                        font.weight: Font.Medium
                        Accessible.ignored: true
                    }
                }

                WidgetText {
                    Layout.fillWidth: true
                    text: modelData
                    Accessible.ignored: true
                }
            }
        }
    }

    WidgetCard {
        width: parent.width

        WidgetLabeledText {
            width: parent.width
            label: qsTr("Network Name")
            text: root.accessPointName
            symbol: Style.symbolWiFi
        }

        WidgetLabeledText {
            objectName: "accessPointPassword"
            width: parent.width
            label: qsTr("Password")
            text: root.accessPointPassword
            symbol: Style.symbolEncrypted
            copyable: true
        }
    }

    WidgetBusy {
        anchors.horizontalCenter: parent.horizontalCenter
    }

    WidgetText {
        objectName: "messageText"
        width: parent.width
        text: qsTr("Searching for\nQuivera device...")
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Style.fontTitle
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
