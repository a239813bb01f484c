import QtQuick 2.15
import "."

// What is the matter, and what to do about it. A screen reader speaks it when it appears.
Column {
    id: root

    property string heading
    property string text
    property url symbol
    property bool isWaiting: false

    readonly property bool hasHeading: heading.length > 0
    // A screen reader hears of an alert that appears, not of one that says something else now.
    property bool isTurning: false

    function turn() {
        isTurning = true;
        Qt.callLater(show);
    }

    function show() {
        isTurning = false;
    }

    spacing: Style.spaceSmall
    padding: Style.spaceSmall
    onHeadingChanged: turn()
    onTextChanged: turn()

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
        visible: root.hasHeading && !root.isTurning
        text: root.heading
        Accessible.role: Accessible.AlertMessage
        Accessible.description: root.text
        Accessible.ignored: !root.hasHeading
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Style.fontTitle
        font.weight: Font.Medium
    }

    WidgetText {
        objectName: "noticeText"
        width: parent.width - 2 * parent.padding
        visible: text.length > 0 && !root.isTurning
        text: root.text
        Accessible.role: Accessible.AlertMessage
        Accessible.ignored: root.hasHeading
        horizontalAlignment: Text.AlignHCenter
        color: Style.textSecondary
        lineHeight: 1.2
    }
}
