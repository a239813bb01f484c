import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// The way to another program on this PC.
ColumnLayout {
    id: root

    property alias buttonText: button.text
    // What the button does, in a sentence.
    property string hint
    property bool isInstalled: false
    // The program was asked for, and did not start.
    property bool hasFailed: false

    signal clicked

    spacing: Style.spaceTiny

    ButtonText {
        id: button
        objectName: "companionButton"
        primary: false
        Layout.fillWidth: true
        enabled: root.isInstalled
        Accessible.description: root.hint
        onClicked: root.clicked()
    }

    WidgetText {
        Layout.fillWidth: true
        text: root.hint
        color: Style.textSecondary
        font.pixelSize: Style.fontSmall
        horizontalAlignment: Text.AlignHCenter
    }

    WidgetText {
        objectName: "companionMissing"
        visible: !root.isInstalled
        Layout.fillWidth: true
        text: qsTr("It is not installed on this PC.")
        color: Style.textSecondary
        font.pixelSize: Style.fontSmall
        horizontalAlignment: Text.AlignHCenter
    }

    WidgetStatus {
        objectName: "companionFailed"
        visible: root.hasFailed
        Layout.fillWidth: true
        statusType: 1
        text: qsTr("The program did not start. Try again, or install it anew.")
        Accessible.role: Accessible.AlertMessage
    }
}
