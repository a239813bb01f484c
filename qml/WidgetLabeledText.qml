import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// A value below its name. One that is worth it can be copied.
RowLayout {
    id: root

    property string label
    property string text
    property url symbol
    property bool copyable: false

    spacing: Style.spaceSmall
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("%1: %2").arg(root.label).arg(root.text)

    Image {
        visible: root.symbol.toString().length > 0
        source: root.symbol
        sourceSize.width: Style.symbol
        sourceSize.height: Style.symbol
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Style.spaceTiny

        WidgetText {
            Layout.fillWidth: true
            text: root.label
            color: Style.textSecondary
            font.pixelSize: Style.fontSmall
            Accessible.ignored: true
        }

        TextEdit {
            id: value
            objectName: "valueText"
            Layout.fillWidth: true
            text: root.text
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
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
        visible: root.copyable && root.text.length > 0
        symbol: Style.symbolCopy
        name: qsTr("Copy: %1").arg(root.label)
        onClicked: {
            value.selectAll();
            value.copy();
            value.deselect();
        }
    }
}
