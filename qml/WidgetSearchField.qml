import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."

// One line to type a search into.
T.TextField {
    id: root

    signal downPressed

    implicitHeight: Style.touchTarget
    implicitWidth: 200
    leftPadding: Style.spaceMedium + Style.symbol
    rightPadding: clearButton.width + Style.spaceTiny
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    maximumLength: 200
    activeFocusOnTab: true
    hoverEnabled: true
    inputMethodHints: Qt.ImhNoPredictiveText
    color: Style.text
    selectionColor: Style.accent
    selectedTextColor: Style.textOnAccent
    placeholderTextColor: Style.textSecondary
    font.family: Style.fontFamily
    font.pixelSize: Style.fontBody

    Accessible.role: Accessible.EditableText
    Accessible.name: root.placeholderText
    Accessible.searchEdit: true

    // Once there is nothing to clear, it leads back.
    Keys.onEscapePressed: event => {
        event.accepted = root.length > 0;
        root.clear();
    }
    Keys.onDownPressed: root.downPressed()

    background: WidgetBackground {
        hovered: root.hovered
        focused: root.activeFocus
    }

    Image {
        x: Style.spaceSmall
        anchors.verticalCenter: parent.verticalCenter
        source: Style.symbolSearch
        sourceSize.width: Style.symbol
        sourceSize.height: Style.symbol
    }

    WidgetText {
        anchors.fill: parent
        leftPadding: root.leftPadding
        rightPadding: root.rightPadding
        visible: root.length === 0 && root.preeditText.length === 0
        text: root.placeholderText
        Accessible.ignored: true
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        color: root.placeholderTextColor
    }

    ButtonSymbol {
        id: clearButton
        objectName: "clearSearch"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.length > 0
        symbol: Style.symbolClear
        name: qsTr("Clear the search")
        onClicked: {
            root.clear();
            root.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
}
