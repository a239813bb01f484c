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

    implicitWidth: content.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Style.touchTarget, content.implicitHeight + topPadding + bottomPadding)
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

    contentItem: Item {
        implicitWidth: content.implicitWidth
        implicitHeight: content.implicitHeight

        RowLayout {
            id: content
            anchors.centerIn: parent
            width: Math.min(parent.width, implicitWidth)
            spacing: Style.spaceSmall

            Image {
                visible: status === Image.Ready
                opacity: root.enabled ? 1 : 0.5
                source: root.symbol
                sourceSize.width: Style.symbol
                sourceSize.height: Style.symbol
            }

            Text {
                Layout.fillWidth: true
                text: root.text
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                color: root.textColor
                font.family: Style.fontFamily
                font.pixelSize: Style.fontBody
                font.weight: Font.Medium
            }
        }
    }
}
