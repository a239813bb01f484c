import QtQuick 2.15
import "."

// A line for a secret: it is covered until the eye is pressed, and no input method learns it.
WidgetInputText {
    id: root

    property bool revealed: false

    endPadding: eye.width + Style.spaceSmall
    field.echoMode: revealed ? TextInput.Normal : TextInput.Password
    field.inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase

    ButtonSymbol {
        id: eye
        objectName: "eyeButton"
        parent: root.field
        anchors.right: parent.right
        anchors.rightMargin: Style.focusRingWidth
        anchors.verticalCenter: parent.verticalCenter
        // Within the line's border.
        height: parent.height - 2 * Style.focusRingWidth
        symbol: root.revealed ? Style.symbolHide : Style.symbolShow
        name: root.revealed ? qsTr("Hide the password") : qsTr("Show the password")
        onClicked: root.revealed = !root.revealed
    }
}
