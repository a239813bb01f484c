import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import "."
import "Texts.js" as Texts

// How a seat is, which leads to what its parts report.
T.AbstractButton {
    id: root

    property alias statusType: status.statusType
    property alias statusText: status.text
    property string seatName

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Style.touchTarget, implicitContentHeight + 2 * Style.spaceSmall)
    leftPadding: Style.spaceSmall
    rightPadding: Style.spaceSmall
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.Button
    Accessible.name: Texts.fill(qsTr("%1: %2"), root.seatName, root.statusText)
    Accessible.description: qsTr("Shows the detailed status")

    Keys.onReturnPressed: event => pressedByKey(event)
    Keys.onEnterPressed: event => pressedByKey(event)

    function pressedByKey(event) {
        if (!event.isAutoRepeat) {
            root.clicked();
        }
    }

    background: Rectangle {
        radius: Style.radius
        color: root.down ? Style.surfacePressed : root.hovered ? Style.surfaceHovered : "transparent"
        border.width: root.visualFocus ? Style.focusRingWidth : 0
        border.color: Style.accent
    }

    contentItem: RowLayout {
        spacing: Style.spaceSmall

        WidgetStatus {
            id: status
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter
        }

        Image {
            source: Style.symbolChevronRight
            sourceSize.width: Style.smallSymbol
            sourceSize.height: Style.smallSymbol
        }
    }
}
