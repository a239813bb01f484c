import QtQuick 2.15
import "."

// The way to a unit without any network settings.
Item {
    id: root

    property PageStack stack

    // Everything has been said; the unit has to be set up anew.
    signal finished

    function ask() {
        deviceManager.goIdle();
        stack.show("pageMain051NetworkReset");
    }

    function cancel() {
        deviceManager.showingNetworkStatus();
        stack.popTo("pageMain050NetworkStatus");
    }

    function resetNetwork() {
        // On its way already: the unit counts as offline from here on, which must not lead back to its page.
        stack.show("pageMain052NetworkResetWait");
        deviceManager.resetNetworkSettings();
        sending.restart();
    }

    function page(more) {
        return Object.assign({
            title: Qt.binding(() => currDevice.name),
            details: qsTr("NETWORK RESET")
        }, more);
    }

    readonly property var pages: ({
            pageMain051NetworkReset: {
                source: "PageGenericDialog.qml",
                properties: page({
                    text: qsTr("This will remove all personalized network settings, including Wi-Fi networks. Device will need to be setup again from the home screen."),
                    symbol: Style.symbolAttention,
                    button1Text: qsTr("Reset"),
                    button2Text: qsTr("Cancel")
                }),
                handlers: {
                    buttonBackClicked: root.cancel,
                    button1Clicked: root.resetNetwork,
                    button2Clicked: root.cancel
                }
            },
            pageMain052NetworkResetWait: {
                source: "PageGenericWait.qml",
                properties: page({
                    text: qsTr("Resetting..."),
                    canGoBack: false
                })
            },
            pageMain053NetworkResetDone: {
                source: "PageGenericDialog.qml",
                properties: page({
                    text: qsTr("Your Quivera device\nnetwork settings\nare reset."),
                    symbol: Style.symbolGood,
                    button1Text: qsTr("Done"),
                    canGoBack: false
                }),
                handlers: {
                    button1Clicked: root.finished
                }
            }
        })

    Timer {
        id: sending
        interval: 1000
        onTriggered: root.stack.show("pageMain053NetworkResetDone")
    }
}
