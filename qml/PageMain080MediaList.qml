import QtQuick 2.15
import "."

// The coded titles in a unit's library.
PageMain080MediaListForm {
    id: root

    signal buttonBackClicked

    // A role of the model; none while the titles stand in the unit's own order.
    property string sortedBy
    property bool isDescending: false
    property string appliedFilter

    readonly property bool isLoading: !currDevice.mediaListValid

    function sortBy(role) {
        isDescending = sortedBy === role && !isDescending;
        sortedBy = role;
        api.sortMediaList(role, isDescending ? Qt.DescendingOrder : Qt.AscendingOrder);
        list.positionViewAtBeginning();
    }

    // What is typed is looked for as it stands, also where it means something in a pattern.
    function applyFilter() {
        pause.stop();
        if (filterText === appliedFilter) {
            return;
        }
        appliedFilter = filterText;
        api.filterMediaList(filterText.replace(/[.*+?^${}()|[\]\\]/g, "\\$&"));
        list.positionViewAtBeginning();
    }

    // Whatever is typed on this page is searched for, without a cursor that blinks while nobody types.
    Keys.onPressed: event => {
        const isTyped = /^[^\x00-\x1f\x7f]+$/.test(event.text) && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier));
        event.accepted = isTyped && searchField.enabled;
        if (event.accepted) {
            searchField.forceActiveFocus(Qt.OtherFocusReason);
            searchField.insert(searchField.length, event.text);
        }
    }

    onFilterTextChanged: {
        if (filterText.length === 0) {
            applyFilter();
        } else {
            pause.restart();
        }
    }

    Timer {
        id: pause
        interval: 150
        onTriggered: root.applyFilter()
    }

    Timer {
        id: patience
        property bool isOver: false
        interval: 6000
        running: root.isLoading && root.visible
        onRunningChanged: isOver = false
        onTriggered: isOver = true
    }

    isTable: body.width >= Style.tableFrom

    pageTitle.title: qsTr("CODED TITLES")
    pageTitle.details: currDevice.name
    pageTitle.canGoBack: true
    pageTitle.onButtonBackClicked: root.buttonBackClicked()

    searchField.placeholderText: qsTr("Search for a title")
    searchField.enabled: !isLoading && !currDevice.mediaListEmpty
    searchField.onAccepted: applyFilter()
    searchField.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)

    countText.text: appliedFilter.length > 0 ? qsTr("Titles found: %1").arg(Number(list.count).toLocaleString(Qt.locale(), "f", 0)) : qsTr("Titles: %1").arg(Number(list.count).toLocaleString(Qt.locale(), "f", 0))
    countText.visible: !isLoading && !currDevice.mediaListEmpty

    headings.visible: countText.visible
    titleHeading.text: qsTr("Title")
    titleHeading.isSorted: sortedBy === "title"
    titleHeading.isDescending: isDescending
    titleHeading.onClicked: sortBy("title")
    releaseHeading.text: qsTr("Released")
    releaseHeading.isSorted: sortedBy === "releaseDate"
    releaseHeading.isDescending: isDescending
    releaseHeading.onClicked: sortBy("releaseDate")
    durationHeading.text: qsTr("Duration")
    durationHeading.isSorted: sortedBy === "duration"
    durationHeading.isDescending: isDescending
    durationHeading.onClicked: sortBy("duration")
    codedHeading.text: qsTr("Coded")
    codedHeading.isSorted: sortedBy === "quiveraCodeDate"
    codedHeading.isDescending: isDescending
    codedHeading.onClicked: sortBy("quiveraCodeDate")

    list.model: mediaListModel
    list.accessibleName: pageTitle.title
    list.delegate: WidgetMediaRow {
        width: ListView.view.width
        isTable: root.isTable
        columnWidth: root.columnWidth
        isCurrent: ListView.isCurrentItem && ListView.view.activeFocus
    }

    notice.visible: isLoading || list.count === 0
    notice.isWaiting: isLoading
    notice.symbol: currDevice.mediaListEmpty ? Style.statusNeutral.symbol : Style.symbolSearch
    notice.heading: {
        if (isLoading) {
            return "";
        }
        return currDevice.mediaListEmpty ? qsTr("No coded titles yet") : qsTr("No title matches your search");
    }
    notice.text: {
        if (isLoading) {
            return patience.isOver ? qsTr("The device answers slowly. Check its network connection if this takes longer.") : qsTr("Reading the list of titles...");
        }
        if (currDevice.mediaListEmpty) {
            return qsTr("The device loads its titles from the internet. Check that it is online, then come back in a few minutes.");
        }
        return qsTr("Check the spelling, or search for a part of the title.");
    }
}
