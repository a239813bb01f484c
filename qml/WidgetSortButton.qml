import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// The heading of a column, which sorts by it; once more turns the order round.
ButtonBase {
    id: root

    property bool isSorted: false
    property bool isDescending: false

    horizontalPadding: Style.spaceSmall
    verticalPadding: Style.spaceTiny

    Accessible.role: Accessible.ColumnHeader
    Accessible.description: {
        if (!root.isSorted) {
            return qsTr("Sorts by this column");
        }
        return root.isDescending ? qsTr("Sorted, descending") : qsTr("Sorted, ascending");
    }
    Accessible.onPressAction: clicked()

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
