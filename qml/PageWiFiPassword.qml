import QtQuick 2.15
import "."

// Asks for the password of the network that was chosen. An open network has none.
PageFrame {
    id: root

    property string wiFiName
    property alias passwordText: input.text
    property alias buttonNext: next

    signal nextClicked

    // Covered first: who listens to what changes on the screen is told what is deleted.
    function forget() {
        input.revealed = false;
        input.text = "";
    }

    maximumContentWidth: Style.formWidth
    spacing: Style.spaceLarge
    initialFocus: input.field

    WidgetLabeledText {
        width: parent.width
        symbol: Style.symbolWiFi
        label: qsTr("Wi-Fi Network")
        text: root.wiFiName
    }

    WidgetInputPass {
        id: input
        objectName: "input"
        width: parent.width
        label: qsTr("Password")
        // An empty password is a decision, to be made with the button.
        onAccepted: {
            if (text.length > 0) {
                root.nextClicked();
            }
        }
    }

    WidgetText {
        width: parent.width
        text: qsTr("Leave the password empty if the network is open.")
        color: Style.textSecondary
        font.pixelSize: Style.fontSmall
    }

    ButtonText {
        id: next
        objectName: "nextButton"
        width: parent.width
        text: qsTr("Next")
        onClicked: root.nextClicked()
    }
}
