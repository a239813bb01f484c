import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// What is the matter, and what to do about it. A screen reader speaks it when it appears.
ColumnLayout {
    id: root

    property string heading
    property string text
    property url symbol
    property bool isWaiting: false

    spacing: Style.spaceSmall
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.heading.length > 0 ? root.heading : root.text
    Accessible.description: root.heading.length > 0 ? root.text : ""

    WidgetBusy {
        visible: root.isWaiting
        Layout.alignment: Qt.AlignHCenter
        Layout.topMargin: Style.spaceSmall
        Layout.bottomMargin: Style.spaceSmall
    }

    Image {
        visible: !root.isWaiting && source != ""
        Layout.alignment: Qt.AlignHCenter
        source: root.symbol
        sourceSize.width: Style.deviceIcon / 2
        sourceSize.height: Style.deviceIcon / 2
    }

    WidgetText {
        objectName: "noticeHeading"
        Layout.fillWidth: true
        visible: text.length > 0
        text: root.heading
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Style.fontTitle
        font.weight: Font.Medium
    }

    WidgetText {
        objectName: "noticeText"
        Layout.fillWidth: true
        visible: text.length > 0
        text: root.text
        horizontalAlignment: Text.AlignHCenter
        color: Style.textSecondary
        lineHeight: 1.2
    }
}
