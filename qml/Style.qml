pragma Singleton

import QtQuick 2.15

// Every colour, size, font and symbol of the user interface. One scale of each.
QtObject {
    // Dark surfaces, from the back to the front. Text on each of them has a contrast of at least 4.5:1.
    readonly property color background: "#101418"
    readonly property color surface: "#1b2127"
    readonly property color surfaceHovered: "#232b33"
    readonly property color surfacePressed: "#2b353f"
    readonly property color outline: "#3a4650"

    readonly property color text: "#f2f5f7"
    readonly property color textSecondary: "#b3bec7"
    readonly property color textDisabled: "#7d8993"

    readonly property color primary: "#1b2127"
    readonly property color accent: "#4fc3e8"
    readonly property color textOnAccent: "#06222c"
    readonly property color accentHovered: "#74d1ef"
    readonly property color accentPressed: "#38b0d6"

    readonly property color attention: "#f5b95a"
    readonly property color good: "#7bd88f"
    readonly property color error: "#ff8f85"

    // Space, in steps of 4.
    readonly property int spaceTiny: 4
    readonly property int spaceSmall: 8
    readonly property int spaceMedium: 16
    readonly property int spaceLarge: 24
    readonly property int spaceHuge: 48

    readonly property int radius: 10
    readonly property int focusRingWidth: 2
    readonly property int touchTarget: 48
    readonly property int titleBarHeight: 72
    readonly property int deviceIcon: 64
    readonly property int symbol: 24
    readonly property int largeSymbol: 56
    readonly property int stepSize: 28
    readonly property int smallSymbol: 20
    readonly property int sliderHandle: 22
    readonly property int listRowHeight: 60
    readonly property int detailRowHeight: 48
    readonly property int contentWidth: 680
    readonly property int formWidth: 480
    readonly property int wideContentWidth: 1180
    // From here on cards stand in two columns, and lists show their columns side by side.
    readonly property int twoColumnsFrom: 1060
    readonly property int tableFrom: 700

    readonly property string fontFamily: "Roboto"
    readonly property int fontSmall: 13
    readonly property int fontBody: 15
    readonly property int fontTitle: 18
    readonly property int fontHeading: 24

    readonly property int windowWidth: 750
    readonly property int windowHeight: 900
    readonly property int windowFrame: 40

    readonly property int tipDelay: 600 // ms

    readonly property url symbolAdd: "qrc:/qml/images/add.svg"
    readonly property url symbolAttention: "qrc:/qml/images/attention.svg"
    readonly property url symbolBack: "qrc:/qml/images/back.svg"
    readonly property url symbolInfo: "qrc:/qml/images/info.svg"
    readonly property url symbolEdit: "qrc:/qml/images/edit.svg"
    readonly property url symbolCopy: "qrc:/qml/images/copy.svg"
    readonly property url symbolWiFi: "qrc:/qml/images/wifi.svg"
    readonly property url symbolWiFiActive: "qrc:/qml/images/wifi-accent.svg"
    readonly property url symbolWiFiOnAccent: "qrc:/qml/images/wifi-on-accent.svg"
    readonly property url symbolAccessPoint: "qrc:/qml/images/access-point.svg"
    readonly property url symbolNetwork: "qrc:/qml/images/network.svg"
    readonly property url symbolEncrypted: "qrc:/qml/images/lock.svg"
    readonly property url symbolUnencrypted: "qrc:/qml/images/unlocked.svg"
    readonly property url symbolShow: "qrc:/qml/images/eye.svg"
    readonly property url symbolHide: "qrc:/qml/images/eye-off.svg"
    readonly property url symbolGood: "qrc:/qml/images/check.svg"
    readonly property url symbolError: "qrc:/qml/images/error.svg"
    readonly property url symbolInactive: "qrc:/qml/images/inactive.svg"

    readonly property url symbolChevronDown: "qrc:/qml/images/chevron-down.svg"
    readonly property url symbolChevronRight: "qrc:/qml/images/chevron-right.svg"
    readonly property url symbolSortNone: "qrc:/qml/images/sort-none.svg"
    readonly property url symbolSortAscending: "qrc:/qml/images/sort-ascending.svg"
    readonly property url symbolSortDescending: "qrc:/qml/images/sort-descending.svg"
    readonly property url symbolClear: "qrc:/qml/images/clear.svg"
    readonly property url symbolSearch: "qrc:/qml/images/search.svg"

    // The ways a status looks and reads. A colour never stands alone.
    readonly property var statusNeutral: ({
            "color": textSecondary,
            "symbol": symbolInactive,
            "meaning": qsTr("Inactive")
        })
    readonly property var statusError: ({
            "color": error,
            "symbol": symbolError,
            "meaning": qsTr("Fault")
        })
    readonly property var statusProgress: ({
            "color": attention,
            "symbol": "qrc:/qml/images/status-progress.svg",
            "meaning": qsTr("In transition")
        })
    readonly property var statusGood: ({
            "color": good,
            "symbol": symbolGood,
            "meaning": qsTr("OK")
        })
    readonly property var statusNone: ({
            "color": text,
            "symbol": "",
            "meaning": ""
        })

    // Two scales: services, programs and seats count 3 as good; the detailed status counts 3 as a fault.
    readonly property var serviceScale: [statusNeutral, statusError, statusProgress, statusGood]
    readonly property var detailScale: [statusNone, statusGood, statusProgress, statusError]

    function serviceStatus(type) {
        return serviceScale[type] || statusError;
    }

    function detailStatus(type) {
        return detailScale[type] || statusError;
    }

    // By product name as the units announce it.
    readonly property var productImages: ({
            "KELM": "qrc:/qml/images/product-kelm.svg",
            "Quivera Hub": "qrc:/qml/images/product-hub.svg",
            "Ruvello": "qrc:/qml/images/product-ruvello.svg"
        })

    function productImage(productName) {
        return productImages[productName] || "qrc:/qml/images/product-kelm.svg";
    }
}
