import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// A number of the unit that can be set: its name, its value, and a slider. The value is handed on when the user lets
// go, not on the way.
Column {
    id: root

    property string label
    // What the value reads like, with %1 for the number.
    property string valueText: "%1"
    property string description
    property real unitValue: 0
    property bool settling: false
    property alias from: slider.from
    property alias to: slider.to
    property alias stepSize: slider.stepSize

    signal edited(real value)

    readonly property string shownText: root.valueText.arg(Number(held.value).toLocaleString(Qt.locale(), "f", 0))

    spacing: 0
    onEnabledChanged: held.forget()

    HeldValue {
        id: held
        unitValue: root.unitValue
        settling: root.settling
    }

    RowLayout {
        width: parent.width
        spacing: Style.spaceMedium
        opacity: root.enabled ? 1 : 0.5

        WidgetText {
            Layout.fillWidth: true
            text: root.label
            Accessible.ignored: true
        }

        WidgetText {
            objectName: "valueText"
            text: root.shownText
            Accessible.ignored: true
            color: Style.textSecondary
        }
    }

    WidgetSlider {
        id: slider
        objectName: "slider"
        width: parent.width
        stepSize: 1
        // Also when the bounds move: they cut the value off that is there, and do not bring it back.
        value: root.from, root.to, held.value
        Accessible.name: root.label
        Accessible.description: root.description.length > 0 ? qsTr("%1, %2").arg(root.shownText).arg(root.description) : root.shownText
        onEdited: {
            held.inHand = pressed;
            held.hold(newValue);
        }
        onCommitted: {
            held.inHand = false;
            if (held.isHeld && (root.settling || held.ownValue !== root.unitValue)) {
                root.edited(held.ownValue);
            }
            held.release();
        }
    }

    WidgetRefusal {
        visible: held.wasRefused
        width: parent.width
    }
}
