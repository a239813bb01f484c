import QtQuick 2.15
import "."

// The program's mark: a seat's movement as a wave in a circle. Of rectangles, for it is in the first frame, which must
// not wait for the readers of image formats.
Rectangle {
    id: root

    // Of a drawing 160 wide.
    readonly property real unit: width / 160
    // The height of each bar of the wave.
    readonly property var bars: [8, 36, 68, 96, 68, 36, 8]

    implicitWidth: 160
    implicitHeight: width
    radius: width / 2
    color: "transparent"
    border.color: Style.outline
    border.width: 4 * root.unit

    Repeater {
        model: root.bars

        Rectangle {
            required property int index
            required property int modelData

            x: (30 + 15.4 * index) * root.unit
            anchors.verticalCenter: parent.verticalCenter
            width: 8 * root.unit
            height: modelData * root.unit
            radius: width / 2
            color: Style.accent
        }
    }
}
