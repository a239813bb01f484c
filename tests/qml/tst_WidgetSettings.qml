import QtQuick 2.15
import QtTest 1.15
import "qrc:/qml"

TestCase {
    id: testCase

    name: "WidgetSettings"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: setting

        WidgetSettingSlider {
            width: 360
            label: "Level:"
            valueText: "%1 dB"
            from: -20
            to: 20
            unitValue: 4
        }
    }

    Component {
        id: choice

        WidgetSettingChoice {
            width: 360
            choices: ["one", "two", "three"]
            unitValue: 1
        }
    }

    SignalSpy {
        id: edits
        signalName: "edited"
    }

    function make(component) {
        const made = createTemporaryObject(component, testCase);
        edits.target = made;
        edits.clear();
        return made;
    }

    function test_a_slider_shows_what_was_set_until_the_unit_was_read_again_data() {
        return [
            {tag: "taken over", answer: 5, refused: false},
            {tag: "refused", answer: 4, refused: true},
            {tag: "cut", answer: 3, refused: true}
        ];
    }

    function test_a_slider_shows_what_was_set_until_the_unit_was_read_again(row) {
        const shown = make(setting);
        const slider = findChild(shown, "slider");
        slider.forceActiveFocus(Qt.TabFocusReason);
        edits.target.edited.connect(() => shown.settling = true);
        keyClick(Qt.Key_Right);
        compare(edits.count, 1);
        compare(edits.signalArguments[0][0], 5);
        shown.unitValue = -1; // read before the setting arrived
        compare(slider.value, 5);
        shown.unitValue = row.answer;
        shown.settling = false;
        compare(slider.value, row.answer);
        compare(shown.shownText, "%1 dB".arg(row.answer));
        compare(findChild(shown, "refusal").visible, row.refused);
        shown.unitValue = -7;
        compare(slider.value, -7);
    }

    function test_a_value_comes_back_when_the_bounds_do() {
        const shown = make(setting);
        shown.to = 2;
        compare(findChild(shown, "slider").value, 2);
        compare(shown.shownText, "4 dB", "the text tells the unit's value");
        shown.to = 20;
        compare(findChild(shown, "slider").value, 4);
        compare(edits.count, 0, "only the user writes");
    }

    function test_keys_open_the_choices_before_they_choose() {
        const shown = make(choice);
        const comboBox = findChild(shown, "comboBox");
        comboBox.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        verify(comboBox.popup.visible);
        compare(edits.count, 0);
        keyClick(Qt.Key_Return);
        compare(edits.count, 0, "the one that is chosen already");
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        compare(edits.count, 1);
        compare(comboBox.currentIndex, 1, "nothing is on its way, so the unit's own");
        shown.choices = ["zero", "one", "two"];
        compare(comboBox.currentIndex, 1, "new choices do not lose it");
        keyClick(Qt.Key_Return);
        verify(comboBox.popup.visible);
        shown.enabled = false;
        verify(!comboBox.popup.visible);
    }
}
