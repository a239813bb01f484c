import QtQuick 2.15
import "."

// A page with a title bar and one column that scrolls when it is longer than the window.
Rectangle {
    id: root

    default property alias content: column.data
    property alias title: bar.title
    property alias details: bar.details
    property alias canGoBack: bar.canGoBack
    property alias rightIcon: bar.rightIcon
    property alias rightName: bar.rightName
    property alias showsTitle: bar.visible
    property alias maximumContentWidth: area.maximumContentWidth
    property alias spacing: column.spacing
    // Whether a column that is shorter than the window stands in its middle.
    property bool centred: false
    // What has the focus when the page is shown.
    property Item initialFocus: null

    signal buttonBackClicked
    signal buttonRightClicked

    color: Style.background
    Accessible.role: Accessible.Pane
    Accessible.name: root.title
    // What stands below the last item that takes the focus is to be read as well.
    Keys.onPressed: event => {
        const parts = {
            [Qt.Key_PageDown]: 0.9,
            [Qt.Key_PageUp]: -0.9,
            [Qt.Key_Down]: 0.1,
            [Qt.Key_Up]: -0.1,
            [Qt.Key_End]: Infinity,
            [Qt.Key_Home]: -Infinity
        };
        event.accepted = event.key in parts;
        if (event.accepted) {
            area.scrollBy(parts[event.key]);
        }
    }

    WidgetPageTitle {
        id: bar
        anchors.left: parent.left
        anchors.right: parent.right
        canGoBack: true
        onButtonBackClicked: root.buttonBackClicked()
        onButtonRightClicked: root.buttonRightClicked()
    }

    WidgetScrollArea {
        id: area
        objectName: "scrollArea"
        anchors.fill: parent
        anchors.topMargin: bar.visible ? bar.height : 0

        Item {
            width: parent.width
            height: root.centred ? Math.max(column.implicitHeight, area.height - 2 * Style.spaceMedium) : column.implicitHeight

            Column {
                id: column
                y: (parent.height - height) / 2
                width: parent.width
                spacing: Style.spaceMedium
                topPadding: root.centred ? 0 : Style.spaceSmall
            }
        }
    }
}
