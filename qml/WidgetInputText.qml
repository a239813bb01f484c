import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."

// A line to type into, below what it asks for.
Column {
    id: root

    property string label
    property alias text: field.text
    property alias maximumLength: field.maximumLength
    property alias field: field
    // Set aside at the end of the line, for what stands there.
    property int endPadding: Style.spaceMedium

    signal accepted

    spacing: Style.spaceSmall

    WidgetText {
        width: root.width
        visible: text.length > 0
        text: root.label
        Accessible.ignored: true
        color: Style.textSecondary
    }

    T.TextField {
        id: field
        objectName: "field"
        width: root.width
        implicitHeight: Style.touchTarget
        leftPadding: Style.spaceMedium
        rightPadding: root.endPadding
        verticalAlignment: TextInput.AlignVCenter
        horizontalAlignment: TextInput.AlignLeft
        selectByMouse: true
        hoverEnabled: true
        color: enabled ? Style.text : Style.textDisabled
        selectionColor: Style.accent
        selectedTextColor: Style.textOnAccent
        font.family: Style.fontFamily
        font.pixelSize: Style.fontTitle
        onAccepted: root.accepted()

        Accessible.role: Accessible.EditableText
        Accessible.name: root.label
        Accessible.passwordEdit: field.echoMode === TextInput.Password

        background: WidgetBackground {
            hovered: field.hovered
            focused: field.activeFocus
        }
    }
}
