import QtQuick 2.15

// One unit: its state, its experience mode and the settings of that mode.
PageMain040DeviceInfoForm {
    id: root

    signal buttonBackClicked
    signal aboutRequested
    signal networkStatusRequested
    signal mediaListRequested
    signal detailedStatusRequested
}
