import QtQuick 2.15
import "."

// One unit: its state, its experience mode and the settings of that mode.
PageMain040DeviceInfoForm {
    id: root

    signal buttonBackClicked
    signal aboutRequested
    signal networkStatusRequested
    signal mediaListRequested
    signal detailedStatusRequested

    // The modes by their value.
    readonly property var modeCards: ({
            0: codedVideoCard,
            1: codedGamingCard,
            2: adaptiveAudioCard,
            3: adaptiveGamingCard
        })

    // Two columns of cards.
    readonly property bool isWide: width >= Style.twoColumnsFrom && showsSettings
    readonly property int mode: currDevice.experienceModeSelected
    readonly property bool isLoading: currDevice.online && !currDevice.detailsValid
    // A unit that answers some questions and never the others is older than this program. It counts as offline for a
    // moment whenever a reading of everything runs out of time.
    property bool needsUpdate: false
    readonly property bool showsSettings: currDevice.detailsValid || (isLoading && needsUpdate && currDevice.experienceModeList.length > 0)
    readonly property bool takesSettings: currDevice.online && showsSettings && !currDevice.experienceModeIsInTransition

    // The programs on this PC; they come and go while this one runs.
    property bool hasAdaptiveGamingApp: false
    property bool hasCodedGamingApp: false
    property bool hasControlPanelApp: false

    function lookForCompanions() {
        hasAdaptiveGamingApp = api.isAdaptiveGamingConfigAppValid();
        hasCodedGamingApp = api.isCodedGamingConfigAppValid();
        hasControlPanelApp = api.isControlPanelConfigAppValid();
    }

    onVisibleChanged: {
        if (visible) {
            lookForCompanions();
        }
    }
    Component.onCompleted: lookForCompanions()

    Connections {
        target: Qt.application

        function onStateChanged() {
            if (Qt.application.state === Qt.ApplicationActive && root.visible) {
                root.lookForCompanions();
            }
        }
    }

    Connections {
        target: currDevice

        function onDeviceChanged() {
            root.scrollArea.contentY = 0;
            patience.steps = 0;
            root.needsUpdate = false;
        }

        function onDetailsChanged() {
            root.needsUpdate = root.needsUpdate && !currDevice.detailsValid;
        }
    }

    Timer {
        id: patience

        property int steps: 0

        // Twice within the 15 s that one reading of everything may take.
        interval: 6000
        repeat: true
        running: root.isLoading && root.visible && !root.needsUpdate
        onTriggered: {
            steps += 1;
            root.needsUpdate = steps >= 2 && currDevice.softwareVersion.length > 0;
        }
    }

    Timer {
        interval: 10000
        running: root.needsUpdate && !currDevice.online
        onTriggered: root.needsUpdate = false
    }

    onIsLoadingChanged: {
        if (currDevice.detailsValid) {
            patience.steps = 0;
        }
    }

    pageTitle.title: currDevice.name
    pageTitle.details: currDevice.productName
    pageTitle.canGoBack: true
    pageTitle.rightIcon: Style.symbolInfo
    pageTitle.rightName: qsTr("About this device")
    pageTitle.onButtonBackClicked: root.buttonBackClicked()
    pageTitle.onButtonRightClicked: root.aboutRequested()

    columns.width: Math.min(columns.parent.width, isWide ? Style.wideContentWidth : Style.contentWidth)
    columns.x: (columns.parent.width - columns.width) / 2
    mainColumn.width: isWide ? (columns.width - Style.spaceMedium) / 2 : columns.width
    outputs.width: mainColumn.width
    outputs.x: isWide ? columns.width - outputs.width : 0
    outputs.y: isWide ? 0 : mainColumn.height + Style.spaceMedium

    noticeCard.visible: !currDevice.online || isLoading
    notice.isWaiting: isLoading && !needsUpdate
    notice.symbol: needsUpdate ? Style.symbolAttention : Style.statusError.symbol
    notice.heading: {
        if (needsUpdate) {
            return qsTr("System Update Required");
        }
        return currDevice.online ? "" : qsTr("This device does not answer");
    }
    notice.text: {
        if (needsUpdate) {
            return qsTr("%1 requires a more recent software version for compatibility. The update should be done automatically but if it doesn't, please contact support.").arg(currDevice.name);
        }
        if (!currDevice.online) {
            return qsTr("Check that it is switched on and connected to your network. The page fills again as soon as the device answers.");
        }
        return patience.steps > 0 ? qsTr("The device answers slowly. Check its network connection if this takes longer.") : qsTr("Reading the settings of the device...");
    }

    networkCard.online: currDevice.online
    networkCard.statusValid: currDevice.networkStatusValid
    networkCard.ssid: currDevice.ssid
    networkCard.interfaces: currDevice.networkInterfaces
    networkCard.onInfoIconClicked: root.networkStatusRequested()

    contentCard.visible: currDevice.online && (showsSettings || needsUpdate)
    contentCard.updateType: currDevice.contentUpdateState.type
    contentCard.updateText: currDevice.contentUpdateState.text
    contentCard.updateTime: currDevice.contentUpdateStateTime

    settings.visible: showsSettings
    modeCard.modes: currDevice.experienceModeList
    modeCard.modeIndex: currDevice.currExperienceModeIndex
    modeCard.inTransition: currDevice.experienceModeIsInTransition
    modeCard.settling: currDevice.settling
    modeCard.description: currDevice.experienceModeDescription
    modeCard.errorMessage: currDevice.experienceModeErrorMessage
    modeCard.onEdited: currDevice.currExperienceModeIndex = index

    // Made when they are shown: each has many controls.
    modeSettings.active: showsSettings
    modeSettings.sourceComponent: modeCards[mode] || null
    modeSettings.enabled: takesSettings

    outputs.visible: showsSettings
    outputs.enabled: takesSettings
    hapticCard.seats: seatListModel
    hapticCard.settling: currDevice.settling
    hapticCard.onSeatHealthClicked: root.detailedStatusRequested()
    hapticCard.companion.isInstalled: hasControlPanelApp
    hapticCard.companion.onClicked: hapticCard.companion.hasFailed = !api.startControlPanelConfigApp()

    softwareCard.programs: currDevice.softwareHealthList

    Component {
        id: codedVideoCard

        WidgetCodedVideoCard {
            objectName: "codedVideoCard"
            audioSource.devices: currDevice.captureDevices
            audioSource.deviceIndex: currDevice.currCaptureDeviceIndex
            audioSource.onEdited: currDevice.currCaptureDeviceIndex = index
            isOutput: currDevice.isCaptureDeviceOut
            automaticVolume: currDevice.automaticVolumeControl
            motionDelay: currDevice.motionDelay
            recognitionTolerance: currDevice.recognitionTolerance
            settling: currDevice.settling
            media.mediaTitle: currDevice.mediaTitle
            media.mediaOffset: currDevice.mediaOffset
            media.mediaDuration: currDevice.mediaDuration
            media.mediaProgress: currDevice.mediaProgress
            media.audioSourceType: currDevice.audioSourceStatus.type
            media.audioSourceText: currDevice.audioSourceStatus.text
            media.motionCodeType: currDevice.motionCodeStatus.type
            media.motionCodeText: currDevice.motionCodeStatus.text
            onAutomaticVolumeEdited: currDevice.automaticVolumeControl = value
            onMotionDelayEdited: currDevice.motionDelay = value
            onRecognitionToleranceEdited: currDevice.recognitionTolerance = value
            onMediaListClicked: root.mediaListRequested()
        }
    }

    Component {
        id: adaptiveAudioCard

        WidgetAdaptiveAudioCard {
            objectName: "adaptiveAudioCard"
            audioSource.devices: currDevice.captureDevices
            audioSource.deviceIndex: currDevice.currCaptureDeviceIndex
            audioSource.onEdited: currDevice.currCaptureDeviceIndex = index
            volumeMin: currDevice.captureVolumeMin
            volumeMax: currDevice.captureVolumeMax
            volumeStep: currDevice.captureVolumeStep
            captureVolume: currDevice.captureVolume
            ignoresVoice: currDevice.adaptiveAudioParameters
            settling: currDevice.settling
            onCaptureVolumeEdited: currDevice.captureVolume = value
            onIgnoresVoiceEdited: currDevice.adaptiveAudioParameters = value
        }
    }

    Component {
        id: adaptiveGamingCard

        WidgetAdaptiveGamingCard {
            objectName: "adaptiveGamingCard"
            profile: currDevice.adaptiveGamingSelectedProfile
            companion.isInstalled: root.hasAdaptiveGamingApp
            companion.onClicked: companion.hasFailed = !api.startAdaptiveGamingConfigApp()
        }
    }

    Component {
        id: codedGamingCard

        WidgetCodedGamingCard {
            objectName: "codedGamingCard"
            companion.isInstalled: root.hasCodedGamingApp
            companion.onClicked: companion.hasFailed = !api.startCodedGamingConfigApp()
        }
    }
}
