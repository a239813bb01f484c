import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// One of a unit's network interfaces.
WidgetCard {
    id: root

    // With the members of an entry of the unit's list of interfaces.
    property var networkInterface: ({})

    // By type: 0 access point, 1 Ethernet, 2 Wi-Fi.
    readonly property var symbols: [Style.symbolAccessPoint, Style.symbolNetwork, Style.symbolWiFi]
    readonly property var rows: [
        {
            label: qsTr("IP Address"),
            text: networkInterface.ip
        },
        {
            label: qsTr("Netmask"),
            text: networkInterface.netmask
        },
        {
            label: qsTr("Broadcast Address"),
            text: networkInterface.broadcast
        },
        {
            label: qsTr("Hardware Address"),
            text: networkInterface.mac
        }
    ].filter(row => row.text)

    RowLayout {
        width: parent.width
        spacing: Style.spaceMedium

        Image {
            source: root.symbols[root.networkInterface.type] || Style.symbolNetwork
            sourceSize.width: Style.symbol
            sourceSize.height: Style.symbol
        }

        WidgetText {
            Layout.fillWidth: true
            text: root.networkInterface.name
            elide: Text.ElideRight
            maximumLineCount: 2
            font.pixelSize: Style.fontTitle
            font.weight: Font.Medium
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        WidgetStatus {
            objectName: "activeStatus"
            Layout.fillWidth: false
            statusType: root.networkInterface.active ? 3 : 0
            text: root.networkInterface.active ? qsTr("Active") : qsTr("Not active")
        }
    }

    Grid {
        id: grid
        width: parent.width
        columns: root.width >= Style.formWidth ? 2 : 1
        columnSpacing: Style.spaceMedium
        rowSpacing: Style.spaceSmall

        Repeater {
            model: root.rows

            WidgetLabeledText {
                required property var modelData

                width: (grid.width - (grid.columns - 1) * grid.columnSpacing) / grid.columns
                label: modelData.label
                text: modelData.text
            }
        }
    }
}
