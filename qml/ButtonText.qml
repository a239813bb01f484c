import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// A push button with a text and, where there is one, a symbol before it. The main action of a page is primary.
AbstractButton {
    id: root

    property bool primary: true
    property url symbol

    readonly property color textColor: !enabled ? Style.textDisabled : primary ? Style.textOnAccent : Style.text

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Style.touchTarget, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: Style.spaceLarge
    verticalPadding: Style.spaceSmall
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Accessible.role: Accessible.Button
    Accessible.name: root.text

    Keys.onReturnPressed: event => pressedByKey(event)
    Keys.onEnterPressed: event => pressedByKey(event)

    function pressedByKey(event) {
        if (!event.isAutoRepeat) {
            root.clicked();
        }
    }

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
            visible: root.symbol.toString().length > 0
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
