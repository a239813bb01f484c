import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

// A button that shows a symbol alone; its name is spoken and shown as a tip.
AbstractButton {
    id: root

    property url symbol
    property string name

    implicitWidth: Style.touchTarget
    implicitHeight: Style.touchTarget
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Accessible.role: Accessible.Button
    Accessible.name: root.name

    Keys.onReturnPressed: event => pressedByKey(event)
    Keys.onEnterPressed: event => pressedByKey(event)

    function pressedByKey(event) {
        if (!event.isAutoRepeat) {
            root.clicked();
        }
    }

    ToolTip.text: root.name
    ToolTip.visible: (root.hovered || root.visualFocus) && root.name.length > 0
    ToolTip.delay: Style.tipDelay

    background: Rectangle {
        radius: Style.radius
        color: root.down ? Style.surfacePressed : root.hovered ? Style.surfaceHovered : "transparent"
        border.width: root.visualFocus ? Style.focusRingWidth : 0
        border.color: Style.accent
    }

    contentItem: Item {
        Image {
            anchors.centerIn: parent
            opacity: root.enabled ? 1 : 0.5
            source: root.symbol
            sourceSize.width: Style.symbol
            sourceSize.height: Style.symbol
        }
    }
}
