import QtQuick 2.15
import "."

// Asks for one line of text.
PageFrame {
    id: root

    property alias text: input.label
    property alias inputText: input.text
    property alias maximumLength: input.maximumLength

    signal buttonDoneClicked

    maximumContentWidth: Style.formWidth
    spacing: Style.spaceLarge
    initialFocus: input.field

    WidgetInputText {
        id: input
        objectName: "input"
        width: parent.width
        field.onActiveFocusChanged: {
            if (field.activeFocus) {
                field.selectAll();
            }
        }
        onAccepted: {
            if (done.enabled) {
                root.buttonDoneClicked();
            }
        }
    }

    ButtonText {
        id: done
        objectName: "doneButton"
        enabled: root.inputText.trim().length > 0
        width: parent.width
        text: qsTr("Done")
        onClicked: root.buttonDoneClicked()
    }
}
