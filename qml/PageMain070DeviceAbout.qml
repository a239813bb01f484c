import QtQuick 2.15
import "."

// What a unit is: its identity, its version and where it is; and what this program is.
PageFrame {
    id: root

    readonly property var sections: [
        {
            title: qsTr("Device"),
            rows: [
                [qsTr("Name"), currDevice.name],
                [qsTr("Product"), currDevice.productName],
                [qsTr("Model"), currDevice.productModel],
                [qsTr("Manufacturer"), currDevice.productVendor],
                [qsTr("Serial Number"), currDevice.serial, true],
                [qsTr("Device ID"), currDevice.uid, true]
            ]
        },
        {
            title: qsTr("Software"),
            rows: [
                [qsTr("Device Software Version"), currDevice.softwareVersion, true]
            ]
        },
        {
            title: qsTr("Network"),
            rows: [
                [qsTr("Network Address"), currDevice.isLocalAddress ? qsTr("%1 (Local)").arg(currDevice.address) : currDevice.address, true],
                [qsTr("Port"), currDevice.port > 0 ? String(currDevice.port) : ""]
            ]
        }
    ]

    title: currDevice.name
    details: qsTr("ABOUT THIS DEVICE")
    rightIcon: Style.symbolEdit
    rightName: qsTr("Change device name")

    Repeater {
        model: root.sections.length

        WidgetCard {
            id: card

            required property int index

            readonly property var section: root.sections[index]

            width: parent.width
            title: section.title

            Repeater {
                model: card.section.rows.length

                WidgetLabeledText {
                    required property int index

                    readonly property var row: card.section.rows[index]

                    objectName: "aboutRow"
                    width: parent.width
                    label: row[0]
                    text: row[1] || qsTr("Not known")
                    copyable: row[2] === true && row[1].length > 0
                }
            }

            WidgetLabeledText {
                objectName: "encryption"
                visible: card.index === root.sections.length - 1
                width: parent.width
                label: qsTr("Connection")
                symbol: currDevice.encrypted ? Style.symbolEncrypted : Style.symbolUnencrypted
                text: currDevice.encrypted ? qsTr("Encrypted") : qsTr("Not encrypted")
            }
        }
    }

    WidgetProductCard {
        objectName: "productCard"
        width: parent.width
    }
}
