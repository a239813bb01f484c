import QtQuick 2.15
import "."

// The flat surface behind a button that asks to be pressed.
Rectangle {
    property bool hovered: false
    property bool pressed: false
    property bool focused: false

    radius: Style.radius
    opacity: enabled ? 1 : 0.4
    color: pressed ? Style.accentPressed : hovered ? Style.accentHovered : Style.accent
    border.width: focused ? Style.focusRingWidth : 0
    border.color: Style.text
}
