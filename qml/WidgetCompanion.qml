import QtQuick 2.15
import "."

// The way to another program on this PC.
Column {
    id: root

    property alias buttonText: button.text
    // What the button does, in a sentence.
    property string hint
    property bool isInstalled: false
    // The program was asked for, and did not start.
    property bool hasFailed: false

    signal clicked

    onVisibleChanged: hasFailed = false

    spacing: Style.spaceTiny

    ButtonText {
        id: button
        objectName: "companionButton"
        primary: false
        width: parent.width
        enabled: root.isInstalled
        Accessible.description: root.hint
        onClicked: root.clicked()
    }

    WidgetText {
        width: parent.width
        text: root.hint
        Accessible.ignored: true
        color: Style.textSecondary
        font.pixelSize: Style.fontSmall
        horizontalAlignment: Text.AlignHCenter
    }

    WidgetText {
        objectName: "companionMissing"
        visible: !root.isInstalled
        width: parent.width
        text: qsTr("It is not installed on this PC.")
        color: Style.textSecondary
        font.pixelSize: Style.fontSmall
        horizontalAlignment: Text.AlignHCenter
    }

    WidgetStatus {
        objectName: "companionFailed"
        visible: root.hasFailed
        width: parent.width
        statusType: 1
        text: qsTr("The program did not start. Try again, or install it anew.")
        Accessible.role: Accessible.AlertMessage
    }
}
