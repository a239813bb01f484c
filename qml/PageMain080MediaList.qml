import QtQuick 2.15

// The coded titles in a unit's library.
PageMain080MediaListForm {
    id: root

    signal buttonBackClicked
}
