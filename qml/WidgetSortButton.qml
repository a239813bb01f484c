import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import "."

// The heading of a column, which sorts by it; once more turns the order round.
T.AbstractButton {
    id: root

    property bool isSorted: false
    property bool isDescending: false

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Style.touchTarget, implicitContentHeight + 2 * Style.spaceTiny)
    leftPadding: Style.spaceSmall
    rightPadding: Style.spaceSmall
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.ColumnHeader
    Accessible.name: root.text
    Accessible.description: {
        if (!root.isSorted) {
            return qsTr("Sorts by this column");
        }
        return root.isDescending ? qsTr("Sorted, descending") : qsTr("Sorted, ascending");
    }
    Accessible.onPressAction: clicked()

    Keys.onReturnPressed: event => pressedByKey(event)
    Keys.onEnterPressed: event => pressedByKey(event)

    function pressedByKey(event) {
        if (!event.isAutoRepeat) {
            root.clicked();
        }
    }

    background: Rectangle {
        radius: Style.radius
        color: root.down ? Style.surfacePressed : root.hovered ? Style.surfaceHovered : "transparent"
        border.width: root.visualFocus ? Style.focusRingWidth : 0
        border.color: Style.accent
    }

    contentItem: RowLayout {
        spacing: Style.spaceTiny

        WidgetText {
            Layout.fillWidth: true
            text: root.text
            Accessible.ignored: true
            maximumLineCount: 2
            elide: Text.ElideRight
            color: root.isSorted ? Style.accent : Style.textSecondary
            font.pixelSize: Style.fontSmall
            font.weight: Font.Medium
        }

        Image {
            objectName: "sortDirection"
            source: !root.isSorted ? Style.symbolSortNone : root.isDescending ? Style.symbolSortDescending : Style.symbolSortAscending
            sourceSize.width: Style.spaceMedium
            sourceSize.height: Style.spaceMedium
        }
    }
}
