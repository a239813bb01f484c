#include "device/DeviceInfoProxy.h"
#include "tests/device/ManagerFixture.h"

namespace orvex::Test {
namespace {

using Simulator::UnitState;

/// What the user sets reaches the unit once, whatever is going on, and what is shown is the unit's truth.
class SettingsTest : public TimedManagerFixture {
protected:
    SettingsTest() {
        proxy.setDeviceInfoManager(manager);
        open(unit);
        EXPECT_TRUE(comes([&] { return unit.counters().requestsOf("RequestContentUpdate") == 1; }));
    }

    struct Setting {
        const char* message;
        std::function<void()> set;
        std::function<bool(const UnitState&)> isSet;
        std::function<bool()> isShown;
    };

    std::vector<Setting> settings() {
        const auto& mode = [](const UnitState& state) { return state.experience.selected; };
        return {
            {"SetMotionDelay", [&] { proxy.setMotionDelay(120); },
             [](const UnitState& state) { return state.motionDelay == 120; },
             [&] { return proxy.motionDelay() == 120; }},
            {"SetRecognitionTolerance", [&] { proxy.setRecognitionTolerance(33); },
             [](const UnitState& state) { return state.recognitionTolerance == 33; },
             [&] { return proxy.recognitionTolerance() == 33; }},
            {"SetCaptureVolume", [&] { proxy.setCaptureVolume(-7); },
             [mode](const UnitState& state) { return state.audio.volumeIn(mode(state)) == -7; },
             [&] { return proxy.captureVolume() == -7; }},
            {"SetAutomaticVolumeControl", [&] { proxy.setAutomaticVolumeControl(false); },
             [](const UnitState& state) { return !state.audio.automaticVolume; },
             [&] { return !proxy.automaticVolumeControl(); }},
            {"SetAdaptiveAudioParameters", [&] { proxy.setAdaptiveAudioParameters(true); },
             [](const UnitState& state) { return state.audio.preMixType == 1; },
             [&] { return proxy.adaptiveAudioParameters(); }},
            {"SetKelmName", [&] { proxy.setName("Renamed"); },
             [](const UnitState& state) { return state.name == "Renamed"; },
             [&] { return proxy.name() == QLatin1String("Renamed"); }},
        };
    }

    std::uint64_t heard(const char* message) const { return unit.counters().requestsOf(message); }

    RunningUnit unit{host, "A"};
    DeviceInfoProxy proxy;
};

TEST_F(SettingsTest, ReachTheUnitOnceWhileNothingAndWhileAPollIsUnderWay) {
    unit.changeState([](UnitState& state) { state.experience.selected = 2; });
    for (const int delay : {0, 40}) {
        Faults slow;
        slow.delay = std::chrono::milliseconds(delay);
        unit.setFaults(slow);
        unit.changeState([](UnitState& state) {
            state.motionDelay = 0;
            state.recognitionTolerance = 10;
            state.audio.volumes.clear();
            state.audio.automaticVolume = true;
            state.audio.preMixType = 0;
            state.name = "A";
        });
        EXPECT_TRUE(comes([&] {
            return proxy.motionDelay() == 0 && !proxy.adaptiveAudioParameters() &&
                   proxy.automaticVolumeControl() && proxy.captureVolume() == 0;
        }));
        if (proxy.name() != QLatin1String("A")) {
            manager->showingDeviceVersions();
            EXPECT_TRUE(comes([&] { return proxy.name() == QLatin1String("A"); }));
            manager->showingDeviceInfo();
        }
        for (const Setting& setting : settings()) {
            const auto before = heard(setting.message);
            EXPECT_TRUE(comes([&] { return communicator->isIdle() == (delay == 0); }));
            setting.set();
            EXPECT_TRUE(comes([&] { return setting.isSet(unit.state()); })) << setting.message;
            manager->showingDeviceInfo();
            EXPECT_TRUE(comes([&] { return setting.isShown(); })) << setting.message;
            EXPECT_EQ(heard(setting.message), before + 1) << setting.message;
        }
    }
}

TEST_F(SettingsTest, AChoiceThatIsTakenBackBeforeItWasReadBackIsTakenBack) {
    unit.fail(AnswerFault::Drop, {"GetAdaptiveAudioParameters"});
    EXPECT_TRUE(comes([&] { return !communicator->isIdle(); }));
    proxy.setAdaptiveAudioParameters(true);
    EXPECT_TRUE(proxy.settling());
    proxy.setAdaptiveAudioParameters(false);
    unit.setFaults({});
    EXPECT_TRUE(comes([&] { return heard("SetAdaptiveAudioParameters") == 1 && !proxy.settling(); }));
    EXPECT_EQ(unit.state().audio.preMixType, 0);

    proxy.setMotionDelay(50);
    manager->showingNetworkStatus();
    EXPECT_TRUE(comes([&] { return heard("GetNetworkState") > 3 && unit.state().motionDelay == 50; }));
    EXPECT_TRUE(proxy.settling()) << "another page's reading tells nothing of it";
    manager->showingDeviceInfo();
    EXPECT_TRUE(comes([&] { return !proxy.settling(); }));
    EXPECT_EQ(proxy.motionDelay(), 50);
}

TEST_F(SettingsTest, AContentUpdateIsAskedOfTheUnitThatIsShownAlone) {
    RunningUnit other(host, "B");
    manager->activateDeviceList();
    list(other);
    EXPECT_TRUE(comes([&] { return areAllKnown(); }));
    unit.fail(AnswerFault::Drop);
    manager->selectDevice(0);
    manager->showingDeviceInfo();
    pass(550);
    manager->activateDeviceList();
    manager->selectDevice(1);
    manager->showingDeviceInfo();
    EXPECT_TRUE(comes([&] { return other.counters().requestsOf("RequestContentUpdate") == 1; }));
    EXPECT_EQ(heard("RequestContentUpdate"), 1U) << "of the first opening";
}

TEST_F(SettingsTest, SurviveAChangeOfPageAndALostConnection) {
    proxy.setMotionDelay(5);
    proxy.setRecognitionTolerance(6);
    manager->activateDeviceList();
    EXPECT_TRUE(
        comes([&] { return unit.state().motionDelay == 5 && unit.state().recognitionTolerance == 6; }));
    EXPECT_EQ(heard("SetMotionDelay"), 1U);

    manager->selectDevice(0);
    unit.fail(AnswerFault::Reset, {"GetMotionDelay"});
    proxy.setMotionDelay(8);
    EXPECT_TRUE(comes([&] { return unit.state().motionDelay == 8; }));
    unit.setFaults({});
    manager->showingDeviceInfo();
    EXPECT_TRUE(comes([&] { return proxy.motionDelay() == 8; }));
    EXPECT_LE(heard("SetMotionDelay"), 3U) << "again only when the connection broke under it";
}

TEST_F(SettingsTest, AnAnswerThatComesTooLateIsNoReasonToSendAgain) {
    unit.fail(AnswerFault::Drop, {"GetMotionDelay", "SetMotionDelay"});
    proxy.setMotionDelay(9);
    EXPECT_TRUE(comes([&] { return unit.state().motionDelay == 9; }));
    const auto start = time.now();
    EXPECT_TRUE(comes([&] { return time.now() - start > std::chrono::seconds(8); }));
    EXPECT_EQ(heard("SetMotionDelay"), 1U);
}

TEST_F(SettingsTest, OfAUnitThatIsGoneEndAndTheUnitIsShownOffline) {
    unit.stop();
    proxy.setMotionDelay(77);
    EXPECT_TRUE(comes([&] { return !proxy.online(); }));
    EXPECT_EQ(proxy.motionDelay(), 0);
    EXPECT_TRUE(comes([&] { return !proxy.settling(); })) << "nobody waits for it for ever";
    unit.start();
    EXPECT_TRUE(comes([&] { return proxy.online() && proxy.detailsValid(); }));
}

TEST_F(SettingsTest, AModeIsChangedThroughItsTransitionToItsEndOrItsError) {
    unit.changeState([](UnitState& state) { state.experience.transition = std::chrono::milliseconds(60); });
    EXPECT_TRUE(comes([&] { return proxy.experienceModeList().size() > 3; }));
    proxy.setCurrExperienceModeIndex(99);
    proxy.setCurrExperienceModeIndex(-1);
    proxy.setCurrExperienceModeIndex(3);
    EXPECT_TRUE(comes([&] { return unit.state().experience.selected == 3; }));
    EXPECT_TRUE(
        comes([&] { return proxy.currExperienceModeIndex() == 3 && !proxy.experienceModeIsInTransition(); }));
    EXPECT_EQ(heard("SetExperienceMode"), 1U) << "an index that is none is no mode";
    int mode = 0;
    for (const int code :
         {100, 101, 102, 103, 104, 200, 890, 891, 892, 893, 894, 899, 910, 1100, 1101, 1102}) {
        unit.changeState([code](UnitState& state) { state.experience.failure = code; });
        proxy.setCurrExperienceModeIndex(mode);
        mode = 1 - mode;
        EXPECT_TRUE(comes([&] {
            return !proxy.experienceModeIsInTransition() &&
                   proxy.experienceModeErrorMessage().contains(QString("(%1)").arg(code));
        })) << code;
    }
}

TEST_F(SettingsTest, AnOutputAsTheSourceHasItsLevelControlledByTheUnit) {
    const auto output = [](const UnitState& state) {
        return std::find_if(state.audio.devices.begin(), state.audio.devices.end(),
                            [](const auto& device) { return device.loopback && device.connected; });
    };
    proxy.setAutomaticVolumeControl(false);
    EXPECT_TRUE(comes([&] { return !unit.state().audio.automaticVolume; }));
    manager->showingDeviceInfo();
    EXPECT_TRUE(comes([&] { return !proxy.automaticVolumeControl() && !proxy.captureDevices().isEmpty(); }));
    const UnitState state = unit.state();
    ASSERT_NE(output(state), state.audio.devices.end());
    const QString wanted = QString::fromStdString(output(state)->name);
    int index = 0;
    while (index < proxy.captureDevices().size() && !proxy.captureDevices()[index].endsWith(wanted)) {
        ++index;
    }
    proxy.setCurrCaptureDeviceIndex(index);
    EXPECT_TRUE(comes([&] { return unit.state().audio.selected == output(state)->identification; }));
    EXPECT_TRUE(comes([&] { return proxy.isCaptureDeviceOut() && proxy.currCaptureDeviceIndex() == index; }));
    EXPECT_TRUE(comes([&] { return unit.state().audio.automaticVolume; }));
    EXPECT_TRUE(comes([&] { return proxy.automaticVolumeControl(); }));
}

TEST_F(SettingsTest, TheLibraryIsRenewedThroughAllItsStates) {
    QStringList seen;
    QObject::connect(&proxy, &DeviceInfoProxy::contentUpdateStateChanged, &proxy, [&] {
        const QString text = proxy.contentUpdateState()->text().section(' ', 0, 0);
        if (seen.isEmpty() || seen.last() != text) {
            seen << text;
        }
    });
    unit.changeState([](UnitState& state) { state.content.pace = std::chrono::milliseconds(600); });
    const QString before = proxy.contentUpdateStateTime();
    manager->showingDeviceInfo();
    EXPECT_TRUE(comes([&] { return proxy.contentUpdateStateTime() != before; }));
    EXPECT_TRUE(seen.contains("Downloading") || seen.contains("Downloading..."))
        << seen.join(',').toStdString();
    EXPECT_TRUE(seen.join(' ').contains("Installing")) << seen.join(',').toStdString();
    EXPECT_TRUE(comes([&] { return proxy.contentUpdateState()->text().isEmpty(); }));
}

} // namespace
} // namespace orvex::Test
