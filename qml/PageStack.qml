import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Window 2.15

// Pages by their id: each is made when it is first shown, and kept. A step is taken at once, without a transition, so
// that there is no time in which neither the old nor the new page is the one that is shown.
T.StackView {
    id: root

    // What this window's console lines begin with.
    property string windowName
    // For every page its document ("source") and, where there are any, "properties" to make it with and "handlers" of
    // its signals.
    property var pages: ({})

    readonly property string currentId: currentItem ? currentItem.objectName : ""

    property var madePages: ({})
    property var components: ({})
    property var formerFocus: ({})

    // Another page may stand now where the last one was.
    signal stepped

    function page(id) {
        if (!madePages[id]) {
            madePages[id] = make(id);
        }
        return madePages[id];
    }

    function make(id) {
        const entry = pages[id];
        const component = Qt.createComponent(Qt.resolvedUrl(entry.source));
        if (component.status !== Component.Ready) {
            console.error(component.errorString());
            return null;
        }
        // With its size from the beginning, and also while it is hidden: it is laid out once, not at every step.
        const made = component.createObject(root, Object.assign({
            objectName: id,
            visible: false,
            width: Qt.binding(() => root.width),
            height: Qt.binding(() => root.height)
        }, entry.properties));
        for (const name in entry.handlers) {
            made[name].connect(entry.handlers[name]);
        }
        return made;
    }

    // Reads the documents of all pages on the loader's own thread, so that the first step to each is no slower than
    // the next.
    function preload() {
        for (const id in pages) {
            const source = pages[id].source;
            if (!components[source]) {
                components[source] = Qt.createComponent(Qt.resolvedUrl(source), Component.Asynchronous, root);
            }
        }
    }

    // Pushes the page; nothing when it is on top already.
    function show(id) {
        const next = currentId === id ? null : page(id);
        if (!next || find(item => item === next)) {
            return;
        }
        formerFocus[currentId] = Window.activeFocusItem;
        noteInput();
        push(next, T.StackView.Immediate);
        console.info(windowName + ": " + id);
        focusPage(next.initialFocus);
    }

    // Pops until that page is on top; to the first page when it is not in the stack.
    function popTo(id) {
        const target = find(item => item.objectName === id);
        noteInput();
        pop(target, T.StackView.Immediate);
        if (currentId.length > 0) {
            console.info(windowName + ": " + currentId);
        }
        focusPage(formerFocus[currentId]);
    }

    function focusPage(item) {
        root.stepped();
        const target = item && item.visible && item.enabled ? item : currentItem;
        target.forceActiveFocus(Window.window.usesKeys ? Qt.TabFocusReason : Qt.OtherFocusReason);
    }

    // The next page shows where the focus is when it was to be seen on this one.
    function noteInput() {
        const item = Window.activeFocusItem;
        if (item && item.visualFocus !== undefined) {
            Window.window.usesKeys = item.visualFocus;
        }
    }

    function goBack(event) {
        event.accepted = Boolean(currentItem && currentItem.buttonBackClicked) && currentItem.canGoBack !== false;
        if (event.accepted && !event.isAutoRepeat) {
            Window.window.usesKeys = true;
            currentItem.buttonBackClicked();
        }
    }

    focus: true
    Keys.onEscapePressed: event => goBack(event)
    Keys.onBackPressed: event => goBack(event)
}
