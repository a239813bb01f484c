import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// The heading of a card, with a way to more about it.
RowLayout {
    id: root

    property string text
    // What the icon leads to; no icon without it.
    property string infoName
    property string infoDescription

    signal infoIconClicked

    spacing: Style.spaceSmall

    WidgetText {
        Layout.fillWidth: true
        Layout.alignment: Qt.AlignVCenter
        text: root.text
        font.pixelSize: Style.fontTitle
        font.weight: Font.Medium
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    ButtonSymbol {
        objectName: "infoIcon"
        visible: root.infoName.length > 0
        // It reaches into the card's margin, so that the symbol stands flush with what is below.
        Layout.topMargin: -Style.spaceMedium
        Layout.bottomMargin: -Style.spaceMedium
        Layout.rightMargin: -(Style.touchTarget - Style.symbol) / 2
        symbol: Style.symbolInfo
        name: root.infoName
        Accessible.description: root.infoDescription
        onClicked: root.infoIconClicked()
    }
}
