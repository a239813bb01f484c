import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."
import "Texts.js" as Texts

// One unit in the list: product image, name, product and what needs doing.
ButtonBase {
    id: root

    property string deviceName
    property string productName
    property string statusText
    property bool needsAttention: false
    property bool localAddress: false

    readonly property string displayName: localAddress ? qsTr("%1 (Local)").arg(Texts.isolate(deviceName)) : deviceName

    padding: Style.spaceMedium

    Accessible.name: root.displayName
    Accessible.description: root.statusText.length > 0 ? Texts.fill(qsTr("%1, %2"), root.productName, root.statusText) : root.productName

    background: WidgetBackground {
        hovered: root.hovered
        pressed: root.down
        focused: root.activeFocus
    }

    contentItem: RowLayout {
        spacing: Style.spaceMedium

        Image {
            source: Style.productImage(root.productName)
            sourceSize.width: Style.deviceIcon
            sourceSize.height: Style.deviceIcon
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: Style.spaceTiny

            Text {
                objectName: "nameText"
                Layout.fillWidth: true
                text: Texts.inOneLine(root.displayName)
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignLeft
                elide: Text.ElideRight
                maximumLineCount: 1
                color: Style.text
                font.family: Style.fontFamily
                font.pixelSize: Style.fontTitle
                font.weight: Font.Medium
            }

            Text {
                Layout.fillWidth: true
                text: root.productName
                textFormat: Text.PlainText
                elide: Text.ElideRight
                maximumLineCount: 1
                color: Style.textSecondary
                font.family: Style.fontFamily
                font.pixelSize: Style.fontBody
            }

            RowLayout {
                visible: root.statusText.length > 0
                Layout.fillWidth: true
                spacing: Style.spaceSmall

                Image {
                    visible: root.needsAttention
                    source: Style.symbolAttention
                    sourceSize.width: Style.fontTitle
                    sourceSize.height: Style.fontTitle
                }

                Text {
                    objectName: "statusText"
                    Layout.fillWidth: true
                    text: root.statusText
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    color: root.needsAttention ? Style.attention : Style.textSecondary
                    font.family: Style.fontFamily
                    font.pixelSize: Style.fontBody
                }
            }
        }
    }
}
