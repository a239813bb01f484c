import QtQuick 2.15
import "."

// One of several things that the unit can do, by its position in the unit's list.
Column {
    id: root

    property string label
    property string accessibleName: label
    property string description
    property alias choices: comboBox.model
    property int unitValue: -1
    property bool settling: false
    // Off where a change takes longer than the unit needs to accept it.
    property bool tellsRefusal: true

    signal edited(int index)

    spacing: Style.spaceTiny
    onEnabledChanged: held.forget()

    HeldValue {
        id: held
        unitValue: root.unitValue
        settling: root.settling
    }

    WidgetText {
        width: parent.width
        visible: text.length > 0
        text: root.label
        Accessible.ignored: true
        opacity: root.enabled ? 1 : 0.5
    }

    WidgetComboBox {
        id: comboBox
        objectName: "comboBox"
        width: parent.width
        // Also when the choices change: they reset what is chosen.
        currentIndex: comboBox.model, held.value
        accessibleName: root.accessibleName
        description: root.description
        onActivated: {
            held.hold(index);
            if (root.settling || index !== root.unitValue) {
                root.edited(index);
            }
            held.release();
        }
    }

    WidgetRefusal {
        visible: held.wasRefused && root.tellsRefusal
        width: parent.width
    }
}
