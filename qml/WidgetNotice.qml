import QtQuick 2.15
import "."

// What is the matter, and what to do about it. A screen reader speaks it when it appears.
Column {
    id: root

    property string heading
    property string text
    property url symbol
    property bool isWaiting: false

    spacing: Style.spaceSmall
    padding: Style.spaceSmall
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.heading.length > 0 ? root.heading : root.text
    Accessible.description: root.heading.length > 0 ? root.text : ""

    WidgetBusy {
        objectName: "busy"
        visible: root.isWaiting
        anchors.horizontalCenter: parent.horizontalCenter
    }

    Image {
        visible: !root.isWaiting
        anchors.horizontalCenter: parent.horizontalCenter
        source: root.symbol
        sourceSize.width: Style.deviceIcon / 2
        sourceSize.height: Style.deviceIcon / 2
    }

    WidgetText {
        objectName: "noticeHeading"
        width: parent.width - 2 * parent.padding
        visible: text.length > 0
        text: root.heading
        Accessible.ignored: true
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Style.fontTitle
        font.weight: Font.Medium
    }

    WidgetText {
        objectName: "noticeText"
        width: parent.width - 2 * parent.padding
        visible: text.length > 0
        text: root.text
        Accessible.ignored: true
        horizontalAlignment: Text.AlignHCenter
        color: Style.textSecondary
        lineHeight: 1.2
    }
}
