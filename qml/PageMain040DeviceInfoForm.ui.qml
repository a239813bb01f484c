import QtQuick 2.15
import "."

Rectangle {
    color: Style.background
}
