import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

Rectangle {
    id: form

    // Columns beside each other, or a title with the rest below it.
    property bool isTable: true
    property int columnWidth: 124
    property alias pageTitle: pageTitle
    property alias filterText: searchField.text
    property alias searchField: searchField
    property alias countText: countText
    property alias headings: headings
    property alias list: list
    property alias body: body
    property alias notice: notice
    property alias titleHeading: titleHeading
    property alias releaseHeading: releaseHeading
    property alias durationHeading: durationHeading
    property alias codedHeading: codedHeading

    color: Style.background
    Accessible.role: Accessible.Pane
    Accessible.name: pageTitle.title

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        WidgetPageTitle {
            id: pageTitle
            Layout.fillWidth: true
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ColumnLayout {
                id: body
                anchors.top: parent.top
                anchors.topMargin: Style.spaceMedium
                anchors.bottom: parent.bottom
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width - 2 * Style.spaceMedium, Style.wideContentWidth)
                spacing: Style.spaceSmall

                WidgetSearchField {
                    id: searchField
                    objectName: "searchField"
                    Layout.fillWidth: true
                }

                WidgetText {
                    id: countText
                    objectName: "countText"
                    Layout.fillWidth: true
                    Layout.leftMargin: Style.spaceSmall
                    color: Style.textSecondary
                    font.pixelSize: Style.fontSmall
                }

                GridLayout {
                    id: headings
                    Layout.fillWidth: true
                    columns: form.isTable ? 4 : 2
                    columnSpacing: 0
                    rowSpacing: 0

                    WidgetSortButton {
                        id: titleHeading
                        objectName: "titleHeading"
                        Layout.fillWidth: true
                    }

                    WidgetSortButton {
                        id: releaseHeading
                        objectName: "releaseHeading"
                        Layout.fillWidth: !form.isTable
                        Layout.preferredWidth: form.columnWidth
                    }

                    WidgetSortButton {
                        id: durationHeading
                        objectName: "durationHeading"
                        Layout.fillWidth: !form.isTable
                        Layout.preferredWidth: form.columnWidth
                    }

                    WidgetSortButton {
                        id: codedHeading
                        objectName: "codedHeading"
                        Layout.fillWidth: !form.isTable
                        Layout.preferredWidth: form.columnWidth
                    }
                }

                Item {
                    Layout.fillWidth: true
                    Layout.fillHeight: true

                    WidgetList {
                        id: list
                        objectName: "mediaList"
                        anchors.fill: parent
                    }

                    WidgetNotice {
                        id: notice
                        objectName: "mediaNotice"
                        anchors.centerIn: parent
                        width: Math.min(parent.width - 2 * Style.spaceMedium, Style.contentWidth)
                    }
                }
            }
        }
    }
}
