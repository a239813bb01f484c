import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."
import "Texts.js" as Texts

// One Wi-Fi network in a list.
ButtonBase {
    id: root

    property string networkName
    // Whether the unit is joined to it.
    property bool active: false

    implicitHeight: Math.max(Style.listRowHeight, contentItem.implicitHeight + topPadding + bottomPadding)
    horizontalPadding: Style.spaceMedium
    verticalPadding: Style.spaceSmall

    Accessible.name: root.networkName
    Accessible.description: root.active ? qsTr("Connected") : ""

    background: WidgetBackground {
        hovered: root.hovered
        pressed: root.down
        focused: root.activeFocus
    }

    contentItem: RowLayout {
        spacing: Style.spaceMedium

        Image {
            source: root.active ? Style.symbolWiFiActive : Style.symbolWiFi
            sourceSize.width: Style.symbol
            sourceSize.height: Style.symbol
        }

        WidgetText {
            objectName: "networkName"
            Layout.fillWidth: true
            text: Texts.inOneLine(root.networkName)
            Accessible.ignored: true
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            maximumLineCount: 1
            font.pixelSize: Style.fontTitle
        }

        WidgetStatus {
            objectName: "activeStatus"
            Layout.fillWidth: false
            visible: root.active
            statusType: 3
            text: qsTr("Connected")
        }
    }
}
