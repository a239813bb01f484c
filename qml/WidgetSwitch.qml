import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."

// A switch whose handle is flat.
T.Switch {
    id: root

    property string accessibleName
    property string description

    function flip() {
        toggle();
        toggled();
    }

    implicitWidth: indicator.width
    implicitHeight: Style.touchTarget
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: root.accessibleName
    Accessible.description: root.description
    Accessible.checkable: true
    Accessible.checked: checked

    Keys.onReturnPressed: flip()
    Keys.onEnterPressed: flip()

    indicator: Rectangle {
        y: (root.height - height) / 2
        width: 48
        height: 28
        radius: height / 2
        color: root.checked ? Style.accent : root.hovered ? Style.surfacePressed : Style.surfaceHovered
        border.width: root.visualFocus ? Style.focusRingWidth : 1
        border.color: root.visualFocus ? Style.text : root.checked ? Style.accent : Style.textSecondary

        Rectangle {
            x: root.checked ? parent.width - width - 4 : 4
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            radius: 10
            color: root.checked ? Style.textOnAccent : Style.textSecondary
        }
    }
}
