import QtQuick 2.15
import "."

// The settings of the mode that makes motion from sound.
WidgetCard {
    id: root

    property alias audioSource: audioSource
    property alias volumeMin: volume.from
    property alias volumeMax: volume.to
    property int volumeStep: 1
    property int captureVolume: 0
    property bool ignoresVoice: false
    property bool settling: false

    signal captureVolumeEdited(int value)
    signal ignoresVoiceEdited(bool value)

    title: qsTr("Adaptive Audio Configuration")

    WidgetAudioSource {
        id: audioSource
        width: parent.width
        settling: root.settling
    }

    WidgetSettingSlider {
        id: volume
        objectName: "captureVolume"
        width: parent.width
        label: qsTr("Audio Source Level:")
        valueText: qsTr("%1 dB")
        stepSize: Math.max(1, root.volumeStep)
        unitValue: root.captureVolume
        settling: root.settling
        onEdited: root.captureVolumeEdited(value)
    }

    WidgetSettingSwitch {
        objectName: "ignoresVoice"
        width: parent.width
        label: qsTr("Ignore Central Audio (Voice)")
        unitValue: root.ignoresVoice
        settling: root.settling
        onEdited: root.ignoresVoiceEdited(value)
    }
}
