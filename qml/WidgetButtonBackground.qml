import QtQuick 2.15
import "."

// The flat surface behind a push button. The focus ring stands around it, so that it is seen on both looks.
Rectangle {
    property bool primary: true
    property bool hovered: false
    property bool pressed: false
    property bool focused: false

    readonly property color primaryColor: pressed ? Style.accentPressed : hovered ? Style.accentHovered : Style.accent
    readonly property color secondaryColor: pressed ? Style.surfacePressed : hovered ? Style.surfaceHovered : Style.surface

    radius: Style.radius
    color: !enabled ? Style.surface : primary ? primaryColor : secondaryColor
    border.width: primary && enabled ? 0 : 1
    border.color: Style.outline

    Rectangle {
        anchors.fill: parent
        anchors.margins: -2 * Style.focusRingWidth
        visible: parent.focused
        radius: parent.radius + 2 * Style.focusRingWidth
        color: "transparent"
        border.width: Style.focusRingWidth
        border.color: Style.accent
    }
}
