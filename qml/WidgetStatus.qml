import QtQuick 2.15
import "."

// The state of a service, a program or a seat: symbol, colour and text.
WidgetStatusForm {
    id: root

    // 0 inactive, 1 fault, 2 in transition, 3 good.
    property int statusType: 0
    property string text

    readonly property var look: Style.serviceStatus(statusType)

    visible: text.length > 0
    symbol.source: look.symbol
    label.text: text
    label.color: look.color

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: look.meaning
}
