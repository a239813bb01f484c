import QtQuick 2.15
import "."

// Shows that something is being waited for, and what the user may do meanwhile.
PageFrame {
    id: root

    property string text
    property string notes

    centred: true
    maximumContentWidth: Style.formWidth
    spacing: Style.spaceLarge
    initialFocus: message

    WidgetBusy {
        anchors.horizontalCenter: parent.horizontalCenter
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
        Accessible.description: root.notes
    }

    WidgetText {
        objectName: "notesText"
        width: parent.width
        visible: text.length > 0
        text: root.notes
        Accessible.ignored: true
        horizontalAlignment: Text.AlignHCenter
        color: Style.textSecondary
    }
}
