import QtQuick 2.15
import "."
import "Texts.js" as Texts

// One line of what the unit's modules report. Made for lists of ten thousand: a fixed height, no layouts.
Item {
    id: root

    required property int level
    required property string name
    required property string value
    required property int status

    property bool isCurrent: false

    readonly property var look: Style.detailStatus(status)
    // Deep modules stay readable on a narrow window.
    readonly property int indent: Math.min(level * Style.spaceLarge, width / 3)
    readonly property bool isNarrow: width < Style.tableFrom
    readonly property int lines: isNarrow ? 3 : 2
    readonly property int nameWidth: valueText.text.length > 0 ? (width - nameText.x) * 0.55 : width - nameText.x - Style.spaceSmall

    height: isNarrow ? Style.listRowHeight : Style.detailRowHeight
    Accessible.role: Accessible.ListItem
    Accessible.name: root.value.length > 0 ? Texts.fill(qsTr("%1: %2"), root.name, root.value) : root.name
    Accessible.description: root.look.meaning

    WidgetWholeText {
        texts: [nameText, valueText]
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
        x: root.indent
        width: parent.width - x
        height: 1
        color: Style.outline
    }

    Image {
        id: symbol
        objectName: "statusSymbol"
        x: root.indent + Style.spaceSmall
        anchors.verticalCenter: parent.verticalCenter
        visible: root.status !== 0
        source: root.look.symbol
        sourceSize.width: Style.smallSymbol
        sourceSize.height: Style.smallSymbol
    }

    WidgetText {
        id: nameText
        objectName: "nameText"
        x: symbol.x + Style.smallSymbol + Style.spaceSmall
        width: root.nameWidth
        height: parent.height
        text: root.name
        Accessible.ignored: true
        maximumLineCount: root.lines
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignLeft
        color: root.look.color
        font.weight: root.level === 0 ? Font.Medium : Font.Normal
    }

    WidgetText {
        id: valueText
        objectName: "valueText"
        x: nameText.x + root.nameWidth + Style.spaceSmall
        width: Math.max(0, root.width - x - Style.spaceSmall)
        height: parent.height
        text: root.value.trim()
        Accessible.ignored: true
        maximumLineCount: root.lines
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignRight
        color: Style.textSecondary
    }
}
