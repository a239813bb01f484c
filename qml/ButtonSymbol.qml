import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

// A button that shows a symbol alone; its name is spoken and shown as a tip.
ButtonBase {
    id: root

    property url symbol
    property string name

    implicitWidth: Style.touchTarget
    implicitHeight: Style.touchTarget

    Accessible.name: root.name

    readonly property bool explains: visible && (hovered || visualFocus) && name.length > 0

    ToolTip.text: root.name
    ToolTip.visible: root.explains
    ToolTip.delay: Style.tipDelay
    // It goes with the pointer or the focus; Esc belongs to the page.
    onExplainsChanged: {
        if (explains) {
            ToolTip.toolTip.closePolicy = Popup.NoAutoClose;
        }
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
