import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// Tells under a control that the unit did not take what was set.
RowLayout {
    id: root

    spacing: Style.spaceSmall
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    Image {
        Layout.alignment: Qt.AlignTop
        source: Style.symbolAttention
        sourceSize.width: Style.smallSymbol
        sourceSize.height: Style.smallSymbol
    }

    WidgetText {
        id: message
        Accessible.ignored: true
        objectName: "refusal"
        Layout.fillWidth: true
        text: qsTr("The device did not take over this change. Please try again.")
        color: Style.attention
        font.pixelSize: Style.fontSmall
    }
}
