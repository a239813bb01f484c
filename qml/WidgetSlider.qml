import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."

// A slider with a flat track. It never writes its value itself, so that a binding to it survives.
T.Slider {
    id: root

    // With every step of the user.
    signal edited(real newValue)
    // The user lets go.
    signal committed

    // By these names those who are read the page learn the range.
    readonly property real minimumValue: from
    readonly property real maximumValue: to

    function step(newValue) {
        edited(newValue);
        committed();
    }

    function snapped(newValue) {
        return Math.max(from, Math.min(to, from + Math.round((newValue - from) / stepSize) * stepSize));
    }

    implicitWidth: 200
    implicitHeight: Style.touchTarget
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    snapMode: T.Slider.SnapAlways
    opacity: enabled ? 1 : 0.5

    Accessible.role: Accessible.Slider
    Accessible.onIncreaseAction: step(snapped(value + stepSize))
    Accessible.onDecreaseAction: step(snapped(value - stepSize))

    onMoved: edited(value)
    onPressedChanged: {
        if (!pressed && enabled) {
            committed();
        }
    }
    Keys.onPressed: {
        const pageSize = Math.max(stepSize, (to - from) / 10);
        const targets = {
            [Qt.Key_Home]: from,
            [Qt.Key_End]: to,
            [Qt.Key_PageDown]: value - pageSize,
            [Qt.Key_PageUp]: value + pageSize
        };
        event.accepted = event.key in targets;
        if (event.accepted) {
            step(snapped(targets[event.key]));
        }
    }

    background: Rectangle {
        x: Style.sliderHandle / 2
        y: (root.height - height) / 2
        width: root.width - Style.sliderHandle
        height: 6
        radius: height / 2
        color: Style.outline

        Rectangle {
            width: root.visualPosition * parent.width
            height: parent.height
            radius: parent.radius
            color: root.enabled ? Style.accent : Style.textDisabled
        }
    }

    handle: Rectangle {
        x: root.visualPosition * (root.width - width)
        y: (root.height - height) / 2
        width: Style.sliderHandle
        height: width
        radius: width / 2
        color: !root.enabled ? Style.textDisabled : root.pressed ? Style.accentPressed : root.hovered ? Style.accentHovered : Style.accent
        border.width: root.visualFocus ? Style.focusRingWidth : 0
        border.color: Style.background

        Rectangle {
            anchors.centerIn: parent
            visible: root.visualFocus
            width: parent.width + 4 * Style.focusRingWidth
            height: width
            radius: width / 2
            color: "transparent"
            border.width: Style.focusRingWidth
            border.color: Style.text
        }
    }
}
