import QtQuick 2.15
import "."

// One seat: how it is, and how strongly it moves.
WidgetSeatForm {
    id: root

    property int seatIndex: 0
    // Without a number nothing can be set on it.
    property bool isAddressable: true
    property int statusType: 0
    property string statusText
    property bool seatMuted: false
    property bool controlsLocked: false
    property real motionLevel: 0
    property real vibrationLevel: 0
    property bool settling: false

    signal healthClicked
    signal mutedEdited(bool value)
    signal lockedEdited(bool value)
    signal motionEdited(real value)
    signal vibrationEdited(real value)

    // The levels that a seat takes, in dB; 0 is the strongest.
    readonly property int lowestLevel: -20
    readonly property int highestLevel: 0

    heading.text: isAddressable ? qsTr("Seat %1").arg(seatIndex) : qsTr("Seat")
    controls.enabled: isAddressable

    health.seatName: heading.text
    health.statusType: statusType
    health.statusText: statusText
    health.onClicked: root.healthClicked()

    muted.label: qsTr("Mute")
    muted.context: heading.text
    muted.unitValue: seatMuted
    muted.settling: settling
    muted.onEdited: root.mutedEdited(value)

    motion.label: qsTr("Motion")
    motion.valueText: qsTr("%1 dB")
    motion.description: heading.text
    motion.from: lowestLevel
    motion.to: highestLevel
    motion.unitValue: motionLevel
    motion.settling: settling
    motion.onEdited: root.motionEdited(value)

    vibration.label: qsTr("Vibration")
    vibration.valueText: qsTr("%1 dB")
    vibration.description: heading.text
    vibration.from: lowestLevel
    vibration.to: highestLevel
    vibration.unitValue: vibrationLevel
    vibration.settling: settling
    vibration.onEdited: root.vibrationEdited(value)

    locked.label: qsTr("Keep motion and vibration together")
    locked.context: heading.text
    locked.unitValue: controlsLocked
    locked.settling: settling
    locked.onEdited: root.lockedEdited(value)
}
