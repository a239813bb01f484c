import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

Column {
    id: form

    property string progressName
    property alias heading: heading
    property alias title: title
    property alias audioSource: audioSource
    property alias motionCode: motionCode
    property alias offset: offset
    property alias duration: duration
    property alias bar: bar
    property alias progress: progress
    property alias filled: filled

    spacing: Style.spaceSmall

    WidgetText {
        id: heading
        width: parent.width
    }

    WidgetText {
        id: title
        objectName: "mediaTitle"
        width: parent.width
        maximumLineCount: 2
        elide: Text.ElideRight
    }

    WidgetStatus {
        id: audioSource
        width: parent.width
    }

    WidgetStatus {
        id: motionCode
        width: parent.width
    }

    RowLayout {
        id: progress
        width: parent.width
        spacing: Style.spaceMedium

        WidgetText {
            id: offset
            Accessible.ignored: true
            objectName: "mediaOffset"
            color: Style.textSecondary
            font.pixelSize: Style.fontSmall
        }

        Rectangle {
            id: bar
            Layout.fillWidth: true
            Layout.preferredHeight: 6
            radius: 3
            color: Style.outline
            Accessible.role: Accessible.ProgressBar
            Accessible.name: form.progressName

            Rectangle {
                id: filled
                height: parent.height
                radius: parent.radius
                color: Style.accent
            }
        }

        WidgetText {
            id: duration
            Accessible.ignored: true
            color: Style.textSecondary
            font.pixelSize: Style.fontSmall
        }
    }
}
