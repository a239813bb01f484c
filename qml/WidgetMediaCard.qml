import QtQuick 2.15
import "."

// What the unit has recognised, and how far it has been played.
WidgetMediaCardForm {
    id: root

    property string mediaTitle
    property string mediaOffset
    property string mediaDuration
    // 0 to 1.
    property real mediaProgress: 0
    property int audioSourceType: 0
    property string audioSourceText
    property int motionCodeType: 0
    property string motionCodeText

    readonly property bool isPlaying: mediaTitle.length > 0

    heading.text: qsTr("Now Playing:")
    title.text: isPlaying ? mediaTitle : qsTr("Nothing is recognised. Play a coded title with sound on the chosen audio source.")
    title.color: isPlaying ? Style.text : Style.textSecondary
    title.font.weight: isPlaying ? Font.Medium : Font.Normal
    audioSource.statusType: audioSourceType
    audioSource.text: audioSourceText
    motionCode.statusType: motionCodeType
    motionCode.text: motionCodeText
    progress.visible: isPlaying
    offset.text: mediaOffset
    duration.text: mediaDuration
    filled.width: Math.round(bar.width * mediaProgress)
    progressName: qsTr("%1 of %2 played").arg(mediaOffset).arg(mediaDuration)
}
