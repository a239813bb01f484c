import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."
import "Texts.js" as Texts

// How a seat is, which leads to what its parts report.
ButtonBase {
    id: root

    property alias statusType: status.statusType
    property alias statusText: status.text
    property string seatName

    padding: Style.spaceSmall

    Accessible.name: Texts.fill(qsTr("%1: %2"), root.seatName, root.statusText)
    Accessible.description: qsTr("Shows the detailed status")

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
