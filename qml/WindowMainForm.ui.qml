import QtQuick 2.15
import QtQuick.Controls 2.15

Item {
    property alias stack: stack

    StackView {
        id: stack
        anchors.fill: parent
    }
}
