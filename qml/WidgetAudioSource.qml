import QtQuick 2.15
import "."

// Which sound the unit listens to.
Column {
    id: root

    property var devices: []
    property int deviceIndex: 0
    property bool settling: false

    signal edited(int index)

    WidgetSettingChoice {
        objectName: "audioSource"
        visible: root.devices.length > 0
        width: parent.width
        label: qsTr("Audio Source:")
        choices: root.devices
        unitValue: root.deviceIndex
        settling: root.settling
        onEdited: root.edited(index)
    }

    WidgetStatus {
        objectName: "noAudioSource"
        visible: root.devices.length === 0
        width: parent.width
        statusType: 0
        text: qsTr("Audio Source: None")
    }

    WidgetText {
        visible: root.devices.length === 0
        width: parent.width
        text: qsTr("Connect a sound source to the device, or a microphone or sound card to the PC.")
        color: Style.textSecondary
        font.pixelSize: Style.fontSmall
    }
}
