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
    readonly property int codedVideo: 0
    readonly property int codedGaming: 1
    readonly property int adaptiveAudio: 2
    readonly property int adaptiveGaming: 3

    // Two columns of cards.
    readonly property bool isWide: width >= Style.twoColumnsFrom && showsSettings
    readonly property int mode: currDevice.experienceModeSelected
    readonly property bool isLoading: currDevice.online && !currDevice.detailsValid
    // A unit that answers some questions and never the others is older than this program.
    readonly property bool needsUpdate: isLoading && patience.isOver && currDevice.softwareVersion.length > 0
    readonly property bool showsSettings: currDevice.detailsValid || (needsUpdate && currDevice.experienceModeList.length > 0)
    readonly property bool takesSettings: currDevice.online && showsSettings && !currDevice.experienceModeIsInTransition

    // Programs come and go while this one runs.
    function lookForCompanions() {
        adaptiveGamingCard.companion.isInstalled = api.isAdaptiveGamingConfigAppValid();
        codedGamingCard.companion.isInstalled = api.isCodedGamingConfigAppValid();
        hapticCard.companion.isInstalled = api.isControlPanelConfigAppValid();
        for (const companion of [adaptiveGamingCard.companion, codedGamingCard.companion, hapticCard.companion]) {
            companion.hasFailed = false;
        }
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
        }
    }

    Timer {
        id: patience

        // One reading of everything may take 15 s; within two of them the unit is given up as offline.
        readonly property bool isOver: steps >= 2
        readonly property bool isTried: steps >= 1
        property int steps: 0

        interval: 9000
        repeat: true
        running: root.isLoading && root.visible && steps < 2
        onTriggered: steps += 1
    }

    onIsLoadingChanged: patience.steps = 0

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
    notice.symbol: currDevice.online ? Style.symbolAttention : Style.statusError.symbol
    notice.heading: {
        if (!currDevice.online) {
            return qsTr("This device does not answer");
        }
        return needsUpdate ? qsTr("System Update Required") : "";
    }
    notice.text: {
        if (!currDevice.online) {
            return qsTr("Check that it is switched on and connected to your network. The page fills again as soon as the device answers.");
        }
        if (needsUpdate) {
            return qsTr("%1 requires a more recent software version for compatibility. The update should be done automatically but if it doesn't, please contact support.").arg(currDevice.name);
        }
        return patience.isTried ? qsTr("The device answers slowly. Check its network connection if this takes longer.") : qsTr("Reading the settings of the device...");
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

    modeSettings.enabled: takesSettings

    codedVideoCard.visible: mode === codedVideo
    codedVideoCard.audioSource.devices: currDevice.captureDevices
    codedVideoCard.audioSource.deviceIndex: currDevice.currCaptureDeviceIndex
    codedVideoCard.audioSource.onEdited: currDevice.currCaptureDeviceIndex = index
    codedVideoCard.isOutput: currDevice.isCaptureDeviceOut
    codedVideoCard.automaticVolume: currDevice.automaticVolumeControl
    codedVideoCard.motionDelay: currDevice.motionDelay
    codedVideoCard.recognitionTolerance: currDevice.recognitionTolerance
    codedVideoCard.settling: currDevice.settling
    codedVideoCard.media.mediaTitle: currDevice.mediaTitle
    codedVideoCard.media.mediaOffset: currDevice.mediaOffset
    codedVideoCard.media.mediaDuration: currDevice.mediaDuration
    codedVideoCard.media.mediaProgress: currDevice.mediaProgress
    codedVideoCard.media.audioSourceType: currDevice.audioSourceStatus.type
    codedVideoCard.media.audioSourceText: currDevice.audioSourceStatus.text
    codedVideoCard.media.motionCodeType: currDevice.motionCodeStatus.type
    codedVideoCard.media.motionCodeText: currDevice.motionCodeStatus.text
    codedVideoCard.onAutomaticVolumeEdited: currDevice.automaticVolumeControl = value
    codedVideoCard.onMotionDelayEdited: currDevice.motionDelay = value
    codedVideoCard.onRecognitionToleranceEdited: currDevice.recognitionTolerance = value
    codedVideoCard.onMediaListClicked: root.mediaListRequested()

    adaptiveAudioCard.visible: mode === adaptiveAudio
    adaptiveAudioCard.audioSource.devices: currDevice.captureDevices
    adaptiveAudioCard.audioSource.deviceIndex: currDevice.currCaptureDeviceIndex
    adaptiveAudioCard.audioSource.onEdited: currDevice.currCaptureDeviceIndex = index
    adaptiveAudioCard.volumeMin: currDevice.captureVolumeMin
    adaptiveAudioCard.volumeMax: currDevice.captureVolumeMax
    adaptiveAudioCard.volumeStep: currDevice.captureVolumeStep
    adaptiveAudioCard.captureVolume: currDevice.captureVolume
    adaptiveAudioCard.ignoresVoice: currDevice.adaptiveAudioParameters
    adaptiveAudioCard.settling: currDevice.settling
    adaptiveAudioCard.onCaptureVolumeEdited: currDevice.captureVolume = value
    adaptiveAudioCard.onIgnoresVoiceEdited: currDevice.adaptiveAudioParameters = value

    adaptiveGamingCard.visible: mode === adaptiveGaming
    adaptiveGamingCard.profile: currDevice.adaptiveGamingSelectedProfile
    adaptiveGamingCard.companion.onClicked: adaptiveGamingCard.companion.hasFailed = !api.startAdaptiveGamingConfigApp()

    codedGamingCard.visible: mode === codedGaming
    codedGamingCard.companion.onClicked: codedGamingCard.companion.hasFailed = !api.startCodedGamingConfigApp()

    outputs.visible: showsSettings
    outputs.enabled: takesSettings
    hapticCard.seats: seatListModel
    hapticCard.settling: currDevice.settling
    hapticCard.onSeatHealthClicked: root.detailedStatusRequested()
    hapticCard.companion.onClicked: hapticCard.companion.hasFailed = !api.startControlPanelConfigApp()

    softwareCard.programs: currDevice.softwareHealthList
}
