import QtQuick 2.15
import "."

// Lies over the whole window. The second click of a double click belongs to the page that the first one left: it must
// not press what now stands in the same place, in whichever layer.
Item {
    id: root

    // Whether a step was taken so lately that a click in the same place may be the rest of a double click.
    readonly property bool isSettling: settling.running

    property point lastPress: Qt.point(-width, -height)

    // To be called at every step.
    function guard() {
        swallow.x = lastPress.x - swallow.width / 2;
        swallow.y = lastPress.y - swallow.height / 2;
        settling.restart();
    }

    objectName: "pressGuard"

    PointHandler {
        onActiveChanged: {
            if (active) {
                root.lastPress = point.position;
            }
        }
    }

    MouseArea {
        id: swallow
        width: 2 * Style.touchTarget
        height: 2 * Style.touchTarget
        enabled: settling.running
    }

    Timer {
        id: settling
        interval: Qt.styleHints.mouseDoubleClickInterval
    }
}
