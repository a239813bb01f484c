import QtQuick 2.15
import "."

Column {
    property alias heading: heading
    property alias health: health
    property alias controls: controls
    property alias muted: muted
    property alias locked: locked
    property alias motion: motion
    property alias vibration: vibration

    spacing: Style.spaceSmall

    WidgetText {
        id: heading
        width: parent.width
        font.weight: Font.Medium
    }

    WidgetSeatHealth {
        id: health
        objectName: "seatHealth"
        // Its surface reaches into the margin, so that the symbol stands flush with what is below.
        x: -Style.spaceSmall
        width: parent.width + 2 * Style.spaceSmall
    }

    Column {
        id: controls
        width: parent.width
        spacing: Style.spaceSmall

        WidgetSettingSwitch {
            id: muted
            objectName: "muted"
            width: parent.width
        }

        WidgetSettingSlider {
            id: motion
            objectName: "motion"
            width: parent.width
        }

        WidgetSettingSlider {
            id: vibration
            objectName: "vibration"
            width: parent.width
        }

        WidgetSettingSwitch {
            id: locked
            objectName: "locked"
            width: parent.width
        }
    }
}
