import QtQuick 2.15

// The modules of a unit with what each reports.
PageMain076DetailedStatusForm {
    id: root

    signal buttonBackClicked
}
