import QtQuick 2.15
import QtTest 1.15
import "qrc:/qml"

TestCase {
    id: testCase

    name: "WindowSplash"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: splash

        WindowSplash {
            width: 400
            height: 300
        }
    }

    function test_goes_by_itself() {
        const shown = createTemporaryObject(splash, testCase);
        compare(shown.showDuration, 2500);
        const brief = createTemporaryObject(splash, testCase, {showDuration: 50});
        verify(brief.visible);
        tryCompare(brief, "visible", false);
        verify(shown.visible);
    }

    function test_goes_at_a_click() {
        const shown = createTemporaryObject(splash, testCase);
        mouseClick(shown);
        verify(!shown.visible);
    }
}
