import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

// A list of rows to read through, with pointer or keys.
ListView {
    id: root

    property string accessibleName

    readonly property int rowsPerPage: Math.max(1, Math.floor(height / Style.listRowHeight) - 1)

    function goTo(row) {
        currentIndex = Math.max(0, Math.min(count - 1, row));
    }

    clip: true
    reuseItems: true
    activeFocusOnTab: true
    keyNavigationEnabled: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    currentIndex: -1
    Accessible.role: Accessible.List
    Accessible.name: root.accessibleName

    onActiveFocusChanged: {
        if (activeFocus && currentIndex < 0) {
            currentIndex = Math.max(0, indexAt(0, contentY));
        }
    }
    Keys.onPressed: {
        const targets = {
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: count - 1,
            [Qt.Key_PageUp]: currentIndex - rowsPerPage,
            [Qt.Key_PageDown]: currentIndex + rowsPerPage
        };
        event.accepted = event.key in targets;
        if (event.accepted) {
            goTo(targets[event.key]);
        }
    }

    // Beside the rows, not over them.
    ScrollBar.vertical: ScrollBar {
        parent: root.parent
        anchors.left: root.right
        anchors.top: root.top
        anchors.bottom: root.bottom
        Accessible.ignored: true
        minimumSize: 0.05
    }
}
