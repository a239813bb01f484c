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

    ToolTip.text: root.name
    ToolTip.visible: (root.hovered || root.visualFocus) && root.name.length > 0
    ToolTip.delay: Style.tipDelay

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
