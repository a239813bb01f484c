import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

RowLayout {
    property alias symbol: symbol
    property alias label: label

    spacing: Style.spaceSmall

    Image {
        id: symbol
        Layout.alignment: Qt.AlignTop
        sourceSize.width: Style.smallSymbol
        sourceSize.height: Style.smallSymbol
    }

    WidgetText {
        id: label
        Accessible.ignored: true
        Layout.fillWidth: true
    }
}
