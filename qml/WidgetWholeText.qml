import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import "."

// Shows as a tip what does not fit into a row, while the pointer or the keyboard is on it.
Item {
    id: root

    property var texts: []
    property bool isCurrent: false

    readonly property bool isAsked: hover.hovered || isCurrent

    anchors.fill: parent

    HoverHandler {
        id: hover
    }

    Loader {
        anchors.fill: parent
        active: root.isAsked && root.Window.window !== null && root.texts.some(text => text.truncated)
        sourceComponent: Component {
            Item {
                ToolTip {
                    visible: root.visible && root.Window.window !== null
                    delay: Style.tipDelay
                    closePolicy: Popup.NoAutoClose
                    text: root.texts.filter(entry => entry.text.length > 0).map(entry => entry.text).join("\n")
                }
            }
        }
    }
}
