import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import "."

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
    Accessible.name: qsTr("%1: %2").arg(root.seatName).arg(root.statusText)
    Accessible.description: qsTr("Shows the detailed status")

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

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
