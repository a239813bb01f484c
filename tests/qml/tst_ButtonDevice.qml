import QtQuick 2.15
import QtTest 1.15
import "qrc:/qml"

TestCase {
    id: testCase

    name: "ButtonDevice"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: button

        ButtonDevice {
            width: 360
            deviceName: "Living Room"
            productName: "KELM"
        }
    }

    SignalSpy {
        id: clicks
        signalName: "clicked"
    }

    function test_says_what_it_shows() {
        const shown = createTemporaryObject(button, testCase);
        compare(findChild(shown, "nameText").text, "Living Room");
        compare(shown.Accessible.name, "Living Room");
        verify(!findChild(shown, "statusText").visible);

        shown.localAddress = true;
        shown.statusText = "Network Setup Required";
        compare(findChild(shown, "nameText").text, "Living Room (Local)");
        verify(findChild(shown, "statusText").visible);
        shown.productName = "KELM %2 %1";
        compare(shown.Accessible.description, "KELM %2 %1, Network Setup Required");
    }

    function test_markup_and_long_names_stay_text_within_the_button_data() {
        return [
            {tag: "markup", name: "<b>bold</b><img src='x'>"},
            {tag: "long", name: "x".repeat(300)},
            {tag: "lines", name: "one\ntwo\nthree", shown: "one two three"},
            {tag: "right to left", name: "\u05e9\u05dc\u05d5\u05dd \ud83d\ude00", local: "\u2068\u05e9\u05dc\u05d5\u05dd \ud83d\ude00\u2069 (Local)"}
        ];
    }

    function test_markup_and_long_names_stay_text_within_the_button(row) {
        const shown = createTemporaryObject(button, testCase, {deviceName: row.name});
        const text = findChild(shown, "nameText");
        compare(text.textFormat, Text.PlainText);
        compare(text.text, row.shown || row.name);
        verify(text.width <= shown.width);
        compare(text.lineCount, 1);
        if (row.local) {
            shown.localAddress = true;
            compare(text.text, row.local);
        }
    }

    function test_answers_to_pointer_and_keys() {
        const shown = createTemporaryObject(button, testCase);
        clicks.target = shown;
        clicks.clear();
        shown.forceActiveFocus(Qt.TabFocusReason);
        verify(shown.visualFocus);
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Space);
        compare(clicks.count, 2);
        mouseClick(shown);
        compare(clicks.count, 3);
    }
}
