import QtQuick 2.15

// What a control shows: the unit's value, but what the user has set from the moment it is set until the unit has
// been read again.
QtObject {
    id: root

    property var unitValue
    // The unit's value may be older than what was set last.
    property bool settling: false
    // The user is still at it, nothing has been handed on.
    property bool inHand: false

    property bool isHeld: false
    property var ownValue
    // The unit kept another value than the one that was set.
    property bool wasRefused: false
    readonly property var value: isHeld ? ownValue : unitValue

    function hold(newValue) {
        ownValue = newValue;
        isHeld = true;
        wasRefused = false;
    }

    function release() {
        if (!isHeld || inHand || settling) {
            return;
        }
        wasRefused = unitValue !== ownValue;
        isHeld = false;
    }

    function forget() {
        inHand = false;
        isHeld = false;
        wasRefused = false;
    }

    onSettlingChanged: release()
    onUnitValueChanged: wasRefused = false
}
