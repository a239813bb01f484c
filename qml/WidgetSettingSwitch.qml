import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// Something of the unit that is on or off.
Column {
    id: root

    property alias label: labelText.text
    property string description
    // What it belongs to, where the label alone does not tell those who are read the page.
    property string context
    property bool unitValue: false
    property bool settling: false

    signal edited(bool value)

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
            id: labelText
            Accessible.ignored: true
            Layout.fillWidth: true

            MouseArea {
                anchors.fill: parent
                onClicked: {
                    toggle.forceActiveFocus(Qt.MouseFocusReason);
                    toggle.flip();
                }
            }
        }

        WidgetSwitch {
            id: toggle
            objectName: "switch"
            checked: held.value
            accessibleName: root.label
            description: root.description.length > 0 ? root.description : root.context
            onToggled: {
                held.hold(checked);
                root.edited(held.ownValue);
                held.release();
            }
        }
    }

    WidgetText {
        width: parent.width
        visible: text.length > 0
        text: root.description
        Accessible.ignored: true
        color: Style.textSecondary
        font.pixelSize: Style.fontSmall
    }

    WidgetRefusal {
        visible: held.wasRefused
        width: parent.width
    }
}
