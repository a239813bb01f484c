import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// What the unit makes its seats move to.
WidgetCard {
    id: root

    property var modes: []
    property int modeIndex: -1
    property bool inTransition: false
    property bool settling: false
    property string description
    property string errorMessage

    // As the core words the absence of an error.
    readonly property string noError: qsTranslate("DeviceInfoProxy", "OK")
    readonly property string modeName: modes[modeIndex] || ""
    // A transition that began before the user's eyes; its end is told.
    property bool sawTransition: false

    signal edited(int index)

    title: qsTr("Quivera Mode")
    onInTransitionChanged: {
        if (inTransition) {
            announcement.isDue = false;
            sawTransition = root.visible;
        } else if (sawTransition) {
            sawTransition = false;
            announcement.isDue = root.visible;
            announcementTime.restart();
        }
    }

    WidgetSettingChoice {
        objectName: "modeChoice"
        width: parent.width
        enabled: !root.inTransition && root.modes.length > 0
        accessibleName: root.title
        description: root.description
        choices: root.modes
        unitValue: root.modeIndex
        settling: root.settling
        onEdited: root.edited(index)
    }

    WidgetText {
        objectName: "modeDescription"
        width: parent.width
        text: root.description
        Accessible.ignored: true
        color: Style.textSecondary
    }

    RowLayout {
        objectName: "modeTransition"
        visible: root.inTransition
        width: parent.width
        spacing: Style.spaceMedium
        Accessible.role: Accessible.AlertMessage
        Accessible.name: transitionText.text

        WidgetBusy {}

        WidgetText {
            id: transitionText
            Accessible.ignored: true
            Layout.fillWidth: true
            text: qsTr("Please wait for mode change...")
            color: Style.attention
        }
    }

    WidgetStatus {
        id: error
        objectName: "modeError"
        visible: !root.inTransition && root.errorMessage.length > 0 && root.errorMessage !== root.noError
        width: parent.width
        statusType: 1
        text: root.errorMessage
        Accessible.role: Accessible.AlertMessage
    }

    WidgetStatus {
        id: announcement

        property bool isDue: false

        objectName: "modeAnnouncement"
        // A change that failed is told by its error alone.
        visible: isDue && !error.visible
        width: parent.width
        statusType: 3
        text: qsTr("The mode is now %1.").arg(root.modeName)
        Accessible.role: Accessible.AlertMessage

        Timer {
            id: announcementTime
            interval: 8000
            onTriggered: announcement.isDue = false
        }
    }
}
