import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

ColumnLayout {
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
        Layout.fillWidth: true
        font.weight: Font.Medium
    }

    WidgetSeatHealth {
        id: health
        objectName: "seatHealth"
        Layout.fillWidth: true
        Layout.leftMargin: -Style.spaceSmall
        Layout.rightMargin: -Style.spaceSmall
    }

    ColumnLayout {
        id: controls
        Layout.fillWidth: true
        spacing: Style.spaceSmall

        WidgetSettingSwitch {
            id: muted
            objectName: "muted"
            Layout.fillWidth: true
        }

        WidgetSettingSlider {
            id: motion
            objectName: "motion"
            Layout.fillWidth: true
        }

        WidgetSettingSlider {
            id: vibration
            objectName: "vibration"
            Layout.fillWidth: true
        }

        WidgetSettingSwitch {
            id: locked
            objectName: "locked"
            Layout.fillWidth: true
        }
    }
}
