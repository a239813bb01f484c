import QtQuick 2.15
import "."

// One title. Made for lists of a hundred thousand: a fixed height, no layouts.
Item {
    id: root

    required property string title
    required property string cut
    required property string language
    required property string releaseDate
    required property string imdbRef
    required property string duration
    required property string quiveraCodeDate

    property bool isTable: true
    property int columnWidth: 0
    property bool isCurrent: false

    readonly property string oneLineTitle: oneLine(title)
    readonly property var furtherTexts: isTable ? [cut, language, imdbRef] : [releaseDate, duration, cut, language]

    function oneLine(text) {
        return text.replace(/\s+/g, " ");
    }

    height: Style.listRowHeight
    Accessible.role: Accessible.ListItem
    Accessible.name: oneLineTitle
    Accessible.description: [releaseDate, duration, cut, language].filter(text => text.length > 0).join(", ")

    WidgetWholeText {
        texts: [titleText, furtherText]
        isCurrent: root.isCurrent
    }

    Rectangle {
        anchors.fill: parent
        visible: root.isCurrent
        radius: Style.radius
        color: Style.surfaceHovered
        border.width: Style.focusRingWidth
        border.color: Style.accent
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Style.outline
    }

    WidgetText {
        id: titleText
        objectName: "titleText"
        x: Style.spaceSmall
        y: Style.spaceSmall
        width: (root.isTable ? root.width - 3 * root.columnWidth : root.width) - 2 * Style.spaceSmall
        text: root.oneLineTitle
        Accessible.ignored: true
        wrapMode: Text.NoWrap
        maximumLineCount: 1
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
    }

    WidgetText {
        id: furtherText
        x: Style.spaceSmall
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Style.spaceSmall
        width: titleText.width
        text: root.oneLine(root.furtherTexts.filter(entry => entry.length > 0).join(" · "))
        Accessible.ignored: true
        wrapMode: Text.NoWrap
        maximumLineCount: 1
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        color: Style.textSecondary
        font.pixelSize: Style.fontSmall
    }

    Repeater {
        model: root.isTable ? [root.releaseDate, root.duration, root.quiveraCodeDate] : []

        WidgetText {
            required property int index
            required property string modelData

            x: root.width - (3 - index) * root.columnWidth + Style.spaceSmall
            width: root.columnWidth - 2 * Style.spaceSmall
            height: root.height
            text: root.oneLine(modelData)
            Accessible.ignored: true
            wrapMode: Text.NoWrap
            maximumLineCount: 1
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
    }
}
