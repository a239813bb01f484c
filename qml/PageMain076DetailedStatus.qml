import QtQuick 2.15
import "."

// The modules of a unit with what each reports.
PageMain076DetailedStatusForm {
    id: root

    signal buttonBackClicked

    readonly property bool isLoading: !currDevice.detailedStatusInfoValid

    Timer {
        id: patience
        property bool isOver: false
        interval: 6000
        running: root.isLoading && root.visible
        onRunningChanged: isOver = false
        onTriggered: isOver = true
    }

    pageTitle.title: qsTr("DETAILED STATUS")
    pageTitle.details: currDevice.name
    pageTitle.canGoBack: true
    pageTitle.onButtonBackClicked: root.buttonBackClicked()

    // In the order of the filter's values.
    filter.model: [qsTr("Full Status"), qsTr("Faults Only"), qsTr("Faults With Siblings"), qsTr("Topology Outline"), qsTr("Topology Details")]
    filter.currentIndex: 1
    filter.accessibleName: qsTr("What is shown")
    filter.onActivated: {
        api.filterDetailedStatusList(index);
        list.positionViewAtBeginning();
    }

    // The views of faults show where a fault would stand also when there is none.
    allWell.visible: list.count > 0 && !isLoading && !detailedStatusModel.hasFaults && [1, 2].includes(filter.currentIndex)
    allWell.statusType: 3
    allWell.text: qsTr("No module reports a fault.")

    list.model: detailedStatusModel
    list.accessibleName: pageTitle.title
    list.delegate: WidgetDetailRow {
        width: ListView.view.width
        isCurrent: ListView.isCurrentItem && ListView.view.activeFocus
    }

    notice.visible: isLoading || list.count === 0
    notice.isWaiting: isLoading
    notice.symbol: Style.statusNeutral.symbol
    notice.text: {
        if (!isLoading) {
            return qsTr("The device reports nothing here. Choose another view above.");
        }
        return patience.isOver ? qsTr("The device answers slowly. Check its network connection if this takes longer.") : qsTr("Reading the status of the modules...");
    }
}
