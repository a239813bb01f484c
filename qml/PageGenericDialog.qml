import QtQuick 2.15
import "."

// Tells one thing and offers up to two answers. What it tells is spoken with the button that has the focus.
PageFrame {
    id: root

    property string text
    property url symbol
    property string button1Text
    property string button2Text

    signal button1Clicked
    signal button2Clicked

    centred: true
    maximumContentWidth: Style.formWidth
    spacing: Style.spaceLarge
    // The answer that changes least.
    initialFocus: button2Text.length > 0 ? button2 : button1Text.length > 0 ? button1 : message

    Image {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.symbol.toString().length > 0
        source: root.symbol
        sourceSize.width: Style.largeSymbol
        sourceSize.height: Style.largeSymbol
    }

    WidgetText {
        id: message
        objectName: "messageText"
        width: parent.width
        text: root.text
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Style.fontTitle
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }

    ButtonText {
        id: button1
        objectName: "button1"
        width: parent.width
        visible: text.length > 0
        text: root.button1Text
        Accessible.description: root.text
        onClicked: root.button1Clicked()
    }

    ButtonText {
        id: button2
        objectName: "button2"
        width: parent.width
        visible: text.length > 0
        primary: false
        text: root.button2Text
        Accessible.description: root.text
        onClicked: root.button2Clicked()
    }
}
