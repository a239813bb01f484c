import QtQuick 2.15
import "."
import "Texts.js" as Texts

// A value below its name. One that is worth it can be copied; its own line breaks are kept only where they are meant.
Item {
    id: root

    property string label
    property string text
    property url symbol
    property bool copyable: false
    property bool keepsLines: false

    readonly property bool hasSymbol: symbol.toString().length > 0
    readonly property bool canCopy: copyable && text.length > 0

    implicitWidth: Math.max(name.implicitWidth, value.implicitWidth) + texts.anchors.leftMargin + texts.anchors.rightMargin
    implicitHeight: Math.max(texts.height + 2 * Style.spaceTiny, canCopy ? Style.touchTarget : 0)
    Accessible.role: Accessible.StaticText
    Accessible.name: Texts.fill(qsTr("%1: %2"), root.label, root.text)

    Image {
        anchors.verticalCenter: parent.verticalCenter
        visible: root.hasSymbol
        source: root.symbol
        sourceSize.width: Style.symbol
        sourceSize.height: Style.symbol
    }

    Column {
        id: texts
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: root.hasSymbol ? Style.symbol + Style.spaceMedium : 0
        anchors.rightMargin: root.canCopy ? Style.touchTarget : 0
        spacing: Style.spaceTiny

        WidgetText {
            id: name
            width: parent.width
            text: root.label
            color: Style.textSecondary
            font.pixelSize: Style.fontSmall
            Accessible.ignored: true
        }

        TextEdit {
            id: value
            objectName: "valueText"
            width: parent.width
            text: root.keepsLines ? root.text : Texts.inOneLine(root.text)
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
            horizontalAlignment: TextEdit.AlignLeft
            readOnly: true
            activeFocusOnPress: false
            selectByMouse: true
            color: Style.text
            selectionColor: Style.accent
            selectedTextColor: Style.textOnAccent
            font.family: Style.fontFamily
            font.pixelSize: Style.fontBody
            Accessible.ignored: true
        }
    }

    ButtonSymbol {
        objectName: "copyButton"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.canCopy
        symbol: Style.symbolCopy
        name: qsTr("Copy: %1").arg(root.label)
        onClicked: {
            value.selectAll();
            value.copy();
            value.deselect();
        }
    }
}
