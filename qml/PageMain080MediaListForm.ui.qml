import QtQuick 2.15
import "."

Rectangle {
    property string filterText

    color: Style.background
}
