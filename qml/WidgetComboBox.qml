import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."

// A list to choose one text from. Keys open the list rather than choose at once: what is chosen may take a unit
// half a minute.
T.ComboBox {
    id: root

    property string accessibleName
    property string description
    property bool openedByKey: false
    // Whether the focus was to be seen on it when it was last usable.
    property bool hadRing: false

    // With what is chosen highlighted, as after a click.
    function open() {
        popup.open();
        for (let row = highlightedIndex; row < currentIndex; ++row) {
            incrementCurrentIndex();
        }
    }

    implicitWidth: 200
    implicitHeight: Style.touchTarget
    leftPadding: Style.spaceMedium
    rightPadding: Style.spaceMedium + Style.symbol + Style.spaceSmall
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : 0.5

    Accessible.role: Accessible.ComboBox
    Accessible.name: root.accessibleName
    Accessible.description: [root.displayText, root.description].filter(text => text.length > 0).join(", ")
    Accessible.onPressAction: root.open()

    onVisualFocusChanged: {
        if (enabled) {
            hadRing = visualFocus;
        }
    }
    onEnabledChanged: {
        if (!enabled) {
            popup.close();
        } else if (hadRing && activeFocus) {
            focusReason = Qt.TabFocusReason;
        }
    }
    Keys.onPressed: {
        const opens = [Qt.Key_Down, Qt.Key_Up, Qt.Key_Return, Qt.Key_Enter].includes(event.key);
        event.accepted = opens && !popup.visible;
        if (event.accepted) {
            openedByKey = true;
            root.open();
        }
    }
    // The release of the key that opened the list would choose from it.
    Keys.onReleased: {
        event.accepted = openedByKey;
        openedByKey = openedByKey && event.isAutoRepeat;
    }

    onHighlightedIndexChanged: {
        reached.isTurning = true;
        Qt.callLater(reached.show);
    }

    // Which choice the keys have reached. They stay with the box, so that no screen reader hears of it otherwise than by
    // an alert that appears.
    Item {
        id: reached

        property bool isTurning: false

        function show() {
            isTurning = false;
        }

        width: 1
        height: 1
        visible: root.popup.visible && !isTurning && root.highlightedIndex >= 0
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.textAt(root.highlightedIndex)
    }

    background: WidgetBackground {
        hovered: root.hovered
        pressed: root.down
        focused: root.visualFocus || root.popup.visible
    }

    contentItem: WidgetText {
        text: root.displayText
        Accessible.ignored: true
        wrapMode: Text.NoWrap
        maximumLineCount: 1
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    indicator: Image {
        x: root.width - width - Style.spaceMedium
        y: (root.height - height) / 2
        source: Style.symbolChevronDown
        sourceSize.width: Style.symbol
        sourceSize.height: Style.symbol
    }

    delegate: T.ItemDelegate {
        id: choice

        required property int index
        required property string modelData

        objectName: "choice"
        width: ListView.view.width
        implicitHeight: Math.max(Style.touchTarget, implicitContentHeight + 2 * Style.spaceSmall)
        leftPadding: Style.spaceMedium
        rightPadding: Style.spaceMedium
        highlighted: root.highlightedIndex === index
        hoverEnabled: true
        text: modelData
        Accessible.role: Accessible.ListItem
        Accessible.name: text
        Accessible.selected: root.currentIndex === index

        contentItem: WidgetText {
            text: choice.text
            Accessible.ignored: true
            maximumLineCount: 2
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
            font.weight: root.currentIndex === choice.index ? Font.Medium : Font.Normal
            color: root.currentIndex === choice.index ? Style.accent : Style.text
        }

        background: Rectangle {
            radius: Style.radius
            color: choice.highlighted || choice.hovered ? Style.surfacePressed : "transparent"
            border.width: choice.highlighted ? Style.focusRingWidth : 0
            border.color: Style.accent
        }
    }

    popup: T.Popup {
        y: root.height + Style.spaceTiny
        width: root.width
        implicitHeight: Math.min(contentItem.implicitHeight + 2 * padding, 7 * Style.touchTarget)
        padding: Style.spaceTiny
        margins: Style.spaceSmall

        contentItem: ListView {
            implicitHeight: contentHeight
            clip: true
            model: root.delegateModel
            currentIndex: root.highlightedIndex
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            Accessible.role: Accessible.List
            Accessible.name: root.accessibleName
        }

        background: Rectangle {
            radius: Style.radius
            color: Style.surfaceHovered
            border.width: 1
            border.color: Style.outline
        }
    }
}
