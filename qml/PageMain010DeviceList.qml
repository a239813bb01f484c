import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// All units on the network.
Rectangle {
    id: root

    property alias model: list.model
    readonly property Item initialFocus: list

    signal addDevice
    signal deviceTapped(int index)

    color: Style.background
    Accessible.role: Accessible.Pane
    Accessible.name: pageTitle.title

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        WidgetPageTitle {
            id: pageTitle
            Layout.fillWidth: true
            title: qsTr("ORVEX SYSTEMS")
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ListView {
                id: list
                objectName: "deviceList"
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width - 2 * Style.spaceMedium, Style.contentWidth)
                topMargin: Style.spaceLarge
                bottomMargin: Style.spaceLarge
                spacing: Style.spaceMedium
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                keyNavigationEnabled: true
                highlightMoveDuration: 0
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Quivera devices")

                // Beside the rows, not over them.
                ScrollBar.vertical: ScrollBar {
                    parent: list.parent
                    anchors.left: list.right
                    anchors.top: list.top
                    anchors.bottom: list.bottom
                    Accessible.ignored: true
                }

                delegate: ButtonDevice {
                    required property int index
                    required property var model

                    // What it says is not known here: the versions of the two do not go together.
                    readonly property bool needsUpdate: model.contentUpdateStateText === qsTranslate("ContentUpdateState", "Unknown state")
                    readonly property string contentText: [model.contentUpdateStateText, model.contentUpdateState2ndText].filter(text => text.length > 0).join("\n")

                    objectName: "deviceRow"
                    width: list.width
                    deviceName: model.name
                    productName: model.productName
                    localAddress: model.localAddress
                    needsAttention: model.hotspotActive || needsUpdate
                    statusText: model.hotspotActive ? qsTr("Network Setup Required") : needsUpdate ? qsTr("System Update Required") : contentText
                    onClicked: root.deviceTapped(index)
                }
            }

            Text {
                objectName: "emptyText"
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                anchors.centerIn: parent
                width: list.width
                visible: list.count === 0
                text: qsTr("No Quivera device found.\nTap the \"Add Quivera Device\"\nbutton below.")
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                color: Style.textSecondary
                font.family: Style.fontFamily
                font.pixelSize: Style.fontTitle
                lineHeight: 1.3
            }
        }

        ColumnLayout {
            Layout.alignment: Qt.AlignHCenter
            Layout.fillWidth: true
            Layout.maximumWidth: list.width
            Layout.bottomMargin: Style.spaceLarge
            spacing: Style.spaceSmall

            ButtonText {
                objectName: "addButton"
                Layout.fillWidth: true
                text: qsTr("Add Quivera Device from Network")
                symbol: Style.symbolAdd
                Accessible.description: addHint.text
                onClicked: root.addDevice()
            }

            Text {
                id: addHint
                Layout.fillWidth: true
                text: qsTr("Connect a Orvex device to your Wi-Fi")
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                color: Style.textSecondary
                font.family: Style.fontFamily
                font.pixelSize: Style.fontSmall
            }
        }
    }
}
