import QtQuick 2.15
import "."

// The flat surface behind a card or a row; shows hover, press and focus without any layer effect.
Rectangle {
    property bool hovered: false
    property bool pressed: false
    property bool focused: false

    radius: Style.radius
    color: pressed ? Style.surfacePressed : hovered ? Style.surfaceHovered : Style.surface
    border.width: focused ? Style.focusRingWidth : 1
    border.color: focused ? Style.accent : Style.outline
}
