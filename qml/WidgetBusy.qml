import QtQuick 2.15
import "."

// Shows that something is being waited for: three dots, lit one after the other. Nothing is drawn while it is hidden.
Row {
    id: root

    property int lit: 0

    spacing: Style.spaceTiny
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Please wait")

    Repeater {
        model: 3

        Rectangle {
            required property int index

            width: Style.spaceSmall
            height: width
            radius: width / 2
            color: index === root.lit ? Style.accent : Style.outline
        }
    }

    Timer {
        interval: 350
        repeat: true
        running: root.visible
        onTriggered: root.lit = (root.lit + 1) % 3
    }
}
