import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// A push button with a text and, where there is one, a symbol before it. The main action of a page is primary.
ButtonBase {
    id: root

    property bool primary: true
    property url symbol

    readonly property color textColor: !enabled ? Style.textDisabled : primary ? Style.textOnAccent : Style.text

    horizontalPadding: Style.spaceLarge
    verticalPadding: Style.spaceSmall

    background: WidgetButtonBackground {
        primary: root.primary
        hovered: root.hovered
        pressed: root.down
        focused: root.visualFocus
    }

    contentItem: RowLayout {
        spacing: Style.spaceSmall

        Item {
            Layout.fillWidth: true
        }

        Image {
            // Drawn for the accent's colour, it would not be seen without.
            visible: root.symbol.toString().length > 0 && (root.enabled || !root.primary)
            opacity: root.enabled ? 1 : 0.5
            source: root.symbol
            sourceSize.width: Style.symbol
            sourceSize.height: Style.symbol
        }

        Text {
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth)
            text: root.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            color: root.textColor
            font.family: Style.fontFamily
            font.pixelSize: Style.fontBody
            font.weight: Font.Medium
        }

        Item {
            Layout.fillWidth: true
        }
    }
}
