import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."

// What every button has in common: a place to touch, the focus, keys, and a background that keeps quiet until the
// button is used.
T.AbstractButton {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Style.touchTarget, implicitContentHeight + topPadding + bottomPadding)
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Accessible.role: Accessible.Button
    Accessible.name: root.text

    Keys.onReturnPressed: event => pressedByKey(event)
    Keys.onEnterPressed: event => pressedByKey(event)

    // A key that is held presses once: the page that comes must not be pressed by it.
    function pressedByKey(event) {
        if (!event.isAutoRepeat) {
            root.clicked();
        }
    }

    background: Rectangle {
        radius: Style.radius
        color: root.down ? Style.surfacePressed : root.hovered ? Style.surfaceHovered : "transparent"
        border.width: root.visualFocus ? Style.focusRingWidth : 0
        border.color: Style.accent
    }
}
