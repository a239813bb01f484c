import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import "."

// A column of things that may be longer than the window. What gets the focus is brought into view.
Flickable {
    id: root

    default property alias content: holder.data
    property int maximumContentWidth: Style.contentWidth

    readonly property Item focused: Window.activeFocusItem

    function bringIntoView(item) {
        for (let ancestor = item; ancestor !== holder; ancestor = ancestor.parent) {
            if (!ancestor) {
                return;
            }
        }
        const top = item.mapToItem(holder, 0, 0).y + holder.y;
        const bottom = top + item.height;
        if (top - Style.spaceLarge < contentY) {
            contentY = Math.max(0, top - Style.spaceLarge);
        } else if (bottom + Style.spaceLarge > contentY + height) {
            contentY = Math.min(Math.max(0, contentHeight - height), bottom + Style.spaceLarge - height);
        }
    }

    // By that part of what is shown; negative: up.
    function scrollBy(part) {
        contentY = Math.max(0, Math.min(contentHeight - height, contentY + part * height));
    }

    contentHeight: holder.height + 2 * Style.spaceMedium
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    onFocusedChanged: {
        if (focused) {
            bringIntoView(focused);
        }
    }

    ScrollBar.vertical: ScrollBar {
        Accessible.ignored: true
    }

    Item {
        id: holder
        x: (root.width - width) / 2
        y: Style.spaceMedium
        width: Math.min(root.width - 2 * Style.spaceMedium, root.maximumContentWidth)
        height: childrenRect.height
    }
}
