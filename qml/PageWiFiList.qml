import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// The Wi-Fi networks that a unit sees, to choose one of.
Rectangle {
    id: root

    property alias title: bar.title
    property alias details: bar.details
    property alias showsTitle: bar.visible
    // Objects with a name, and active where the unit is joined to it. They may go when the next list comes.
    property var networks: []
    readonly property Item initialFocus: list

    signal buttonBackClicked
    signal wiFiClicked(int index)

    // The unit tells the networks again and again: what stays the same keeps its row, and with it focus and place.
    function showNetworks() {
        for (let i = 0; i < networks.length; ++i) {
            const row = {
                name: networks[i].name,
                active: networks[i].active
            };
            if (i < rows.count) {
                rows.set(i, row);
            } else {
                rows.append(row);
            }
        }
        if (rows.count > networks.length) {
            rows.remove(networks.length, rows.count - networks.length);
        }
    }

    function choose(name) {
        for (let i = 0; i < networks.length; ++i) {
            if (networks[i].name === name) {
                root.wiFiClicked(i);
                return;
            }
        }
    }

    color: Style.background
    onNetworksChanged: showNetworks()

    ListModel {
        id: rows
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        WidgetPageTitle {
            id: bar
            Layout.fillWidth: true
            canGoBack: true
            onButtonBackClicked: root.buttonBackClicked()
        }

        WidgetText {
            Layout.fillWidth: true
            Layout.maximumWidth: list.width
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: Style.spaceLarge
            text: qsTr("Select the Wi-Fi network for your Quivera device.")
            color: Style.textSecondary
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ListView {
                id: list
                objectName: "networkList"
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width - 2 * Style.spaceMedium, Style.contentWidth)
                topMargin: Style.spaceMedium
                bottomMargin: Style.spaceLarge
                spacing: Style.spaceSmall
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                keyNavigationEnabled: true
                highlightMoveDuration: 0
                model: rows
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Wi-Fi networks")

                ScrollBar.vertical: ScrollBar {
                    Accessible.ignored: true
                }

                WidgetNotice {
                    anchors.centerIn: parent
                    width: parent.width
                    visible: rows.count === 0
                    isWaiting: visible
                    text: qsTr("No Wi-Fi network found yet. Make sure that your router is switched on and near the device.")
                }

                delegate: ButtonNetwork {
                    required property var model
                    // The network that the finger went down on: the row may show another one when it is lifted.
                    property string pressedName

                    objectName: "networkRow"
                    width: list.width
                    networkName: model.name
                    active: model.active
                    onPressed: pressedName = networkName
                    onCanceled: pressedName = ""
                    onClicked: {
                        const name = pressedName || networkName;
                        pressedName = "";
                        root.choose(name);
                    }
                }
            }
        }
    }
}
