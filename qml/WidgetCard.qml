import QtQuick 2.15
import "."

// One subject of a page: a heading and what belongs to it, below each other.
Rectangle {
    id: root

    default property alias content: column.data
    property alias title: cardTitle.text
    property alias infoName: cardTitle.infoName
    property alias infoDescription: cardTitle.infoDescription

    signal infoIconClicked

    implicitWidth: column.implicitWidth + 2 * Style.spaceMedium
    implicitHeight: column.implicitHeight + 2 * Style.spaceMedium
    radius: Style.radius
    color: Style.surface
    border.width: 1
    border.color: Style.outline

    Accessible.role: Accessible.Grouping
    Accessible.name: root.title

    Column {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Style.spaceMedium
        spacing: Style.spaceSmall

        WidgetCardTitle {
            id: cardTitle
            visible: text.length > 0
            width: parent.width
            onInfoIconClicked: root.infoIconClicked()
        }
    }
}
