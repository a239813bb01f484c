import QtQuick 2.15
import "."

// The seats, and the program that configures them.
WidgetCard {
    id: root

    property alias seats: repeater.model
    property alias companion: companion
    property bool settling: false

    signal seatHealthClicked

    title: qsTr("Haptic Output")

    WidgetText {
        width: parent.width
        text: qsTr("Haptic Seats")
        color: Style.textSecondary
    }

    WidgetStatus {
        objectName: "noSeat"
        visible: repeater.count === 0
        width: parent.width
        statusType: 1
        text: qsTr("No Seat Detected")
    }

    WidgetText {
        visible: repeater.count === 0
        width: parent.width
        text: qsTr("Check that the seat has power and that its cable is plugged in.")
        color: Style.textSecondary
        font.pixelSize: Style.fontSmall
    }

    Repeater {
        id: repeater

        Column {
            id: row

            // By way of the model: one of its roles is named like a delegate's own row number.
            required property var model

            width: parent.width
            spacing: Style.spaceSmall

            Rectangle {
                width: parent.width
                height: 1
                color: Style.outline
            }

            WidgetSeat {
                objectName: "seat"
                width: parent.width
                seatIndex: row.model.index
                isAddressable: row.model.active
                statusType: row.model.statusType
                statusText: row.model.statusText
                seatMuted: row.model.muted
                controlsLocked: row.model.controlsLocked
                motionLevel: row.model.motion
                vibrationLevel: row.model.vibration
                settling: root.settling
                onHealthClicked: root.seatHealthClicked()
                onMutedEdited: row.model.muted = value
                onLockedEdited: row.model.controlsLocked = value
                onMotionEdited: row.model.motion = value
                onVibrationEdited: row.model.vibration = value
            }
        }
    }

    Rectangle {
        width: parent.width
        height: 1
        color: Style.outline
    }

    WidgetCompanion {
        id: companion
        objectName: "controlPanelApp"
        width: parent.width
        buttonText: qsTr("Open Control Panel")
        hint: qsTr("Open Orvex Control Panel on your PC.")
    }
}
