import QtQuick 2.15
import "."

// What this program is, and whose work it is made of.
WidgetCard {
    id: root

    readonly property var product: api.getProduct()

    title: qsTr("This App")

    Repeater {
        model: [
            [qsTr("Name"), root.product.name],
            [qsTr("App Version"), api.getAppVersion(), true],
            [qsTr("Copyright"), qsTr("© %1").arg(root.product.copyright)],
            [qsTr("Licence"), root.product.license]
        ]

        WidgetLabeledText {
            required property var modelData

            objectName: "productRow"
            width: parent.width
            label: modelData[0]
            text: modelData[1]
            copyable: modelData[2] === true
        }
    }

    WidgetText {
        width: parent.width
        topPadding: Style.spaceMedium
        text: qsTr("Parts of others in this app, and their licences")
        font.weight: Font.Medium
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Repeater {
        model: root.product.parts

        WidgetLabeledText {
            required property var modelData

            objectName: "partRow"
            keepsLines: true
            width: parent.width
            label: modelData.name
            text: modelData.license + "\n" + qsTr("© %1").arg(modelData.copyright)
        }
    }
}
