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
        onAccepted: root.buttonDoneClicked()
    }

    ButtonText {
        objectName: "doneButton"
        width: parent.width
        text: qsTr("Done")
        onClicked: root.buttonDoneClicked()
    }
}
