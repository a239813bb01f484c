import QtQuick 2.15
import "."

// The settings of the mode for coded films.
WidgetCard {
    id: root

    property alias audioSource: audioSource
    property alias media: media
    property bool isOutput: false
    property bool automaticVolume: true
    property int motionDelay: 0
    property int recognitionTolerance: 0
    property bool settling: false

    // The delays and times that a person may choose from, in ms and s.
    readonly property int longestDelay: 1000
    readonly property int delayStep: 10
    readonly property int longestTolerance: 60

    signal automaticVolumeEdited(bool value)
    signal motionDelayEdited(int value)
    signal recognitionToleranceEdited(int value)
    signal mediaListClicked

    title: qsTr("ORVEX Coded Video Configuration")

    WidgetAudioSource {
        id: audioSource
        width: parent.width
        settling: root.settling
    }

    WidgetSettingSwitch {
        objectName: "automaticVolume"
        width: parent.width
        enabled: !root.isOutput
        label: qsTr("Automatic Input Level Control")
        description: root.isOutput ? qsTr("Always on for a source that is an output.") : ""
        unitValue: root.automaticVolume
        settling: root.settling
        onEdited: root.automaticVolumeEdited(value)
    }

    WidgetSettingSlider {
        objectName: "motionDelay"
        width: parent.width
        label: qsTr("Haptic Delay Calibration:")
        valueText: qsTr("%1 ms")
        description: qsTr("Moves the haptic effects later or earlier than the picture")
        from: -root.longestDelay
        to: root.longestDelay
        stepSize: root.delayStep
        unitValue: root.motionDelay
        settling: root.settling
        onEdited: root.motionDelayEdited(value)
    }

    WidgetSettingSlider {
        objectName: "recognitionTolerance"
        width: parent.width
        label: qsTr("Recognition Tolerance:")
        valueText: qsTr("%1 sec")
        description: qsTr("How long the haptic effects go on when the sound is not recognised")
        from: 0
        to: root.longestTolerance
        unitValue: root.recognitionTolerance
        settling: root.settling
        onEdited: root.recognitionToleranceEdited(value)
    }

    WidgetMediaCard {
        id: media
        width: parent.width
    }

    ButtonText {
        objectName: "mediaListButton"
        primary: false
        width: parent.width
        text: qsTr("List of ORVEX Coded Titles")
        onClicked: root.mediaListClicked()
    }
}
