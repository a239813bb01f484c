#include "device/DeviceInfoProxy.h"

#include "device/WiFiPointInfo.h"
#include "tests/device/SelectedUnitFixture.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QPointer>

namespace orvex::Test {
namespace {

/// Keeps the names of the signals it hears.
class Recorder : public QObject {
    Q_OBJECT
public:
    QStringList heard;
public slots:
    void note() { heard << QString::fromLatin1(sender()->metaObject()->method(senderSignalIndex()).name()); }
};

class DeviceInfoProxyTest : public SelectedUnitFixture {
protected:
    DeviceInfoProxyTest() {
        proxy.setDeviceInfoManager(manager);
        const QMetaObject* type = proxy.metaObject();
        const QMetaMethod listener =
            metaObjectOf(recorder).method(metaObjectOf(recorder).indexOfSlot("note()"));
        for (int index = type->methodOffset(); index < type->methodCount(); ++index) {
            if (type->method(index).methodType() == QMetaMethod::Signal) {
                QObject::connect(&proxy, type->method(index), &recorder, listener);
            }
        }
    }

    QVariant value(const char* name) const { return proxy.property(name); }

    /// The signals since the last call.
    QStringList takeSignals() { return std::exchange(recorder.heard, {}); }

    static CaptureDeviceList sources(std::initializer_list<std::array<const char*, 3>> named) {
        CaptureDeviceList list;
        for (const auto& [name, loopback, status] : named) {
            auto device = std::make_shared<CaptureDevice>();
            device->friendlyName = name;
            device->identification = QStringLiteral("id-%1").arg(name);
            device->loopback = loopback;
            device->status = status;
            list.push_back(device);
        }
        return list;
    }

    static const QMetaObject& metaObjectOf(const QObject& object) { return *object.metaObject(); }

    DeviceInfoProxy proxy;
    Recorder recorder;
};

TEST_F(DeviceInfoProxyTest, WithoutAUnitEveryPropertyHasItsDefaultAndNoSetterDoesAnything) {
    const std::pair<const char*, QVariant> defaults[] = {
        {"online", false},
        {"name", ""},
        {"port", 0},
        {"softwareVersion", ""},
        {"libraryUpdateTime", ""},
        {"contentUpdateStateTime", "N/A"},
        {"mediaListValid", false},
        {"mediaListEmpty", true},
        {"networkStatusValid", false},
        {"hotspotActive", false},
        {"ssid", ""},
        {"detailsValid", false},
        {"currCaptureDeviceIndex", -1},
        {"adaptiveAudioParameters", false},
        {"automaticVolumeControl", true},
        {"captureVolume", 0},
        {"captureVolumeStep", 1},
        {"captureVolumeMin", -10},
        {"captureVolumeMax", 10},
        {"experienceModeIsInTransition", true},
        {"experienceModeDescription", "Please wait for mode change..."},
        {"experienceModeErrorMessage", "OK"},
        {"mediaOffset", "--:--"},
        {"mediaDuration", "--:--"},
    };
    for (const auto& [name, expected] : defaults) {
        EXPECT_EQ(value(name), expected) << name;
    }
    proxy.setName("x");
    proxy.setCurrCaptureDeviceIndex(0);
    proxy.setAdaptiveAudioParameters(true);
    proxy.setAutomaticVolumeControl(false);
    proxy.setCaptureVolume(3);
    proxy.setCurrExperienceModeIndex(0);
    proxy.setMotionDelay(4);
    proxy.setRecognitionTolerance(5);
    pass(1000);
    EXPECT_TRUE(communicator->isIdle());
    EXPECT_EQ(takeSignals(), QStringList());
}

TEST_F(DeviceInfoProxyTest, TellsEverythingOfAnotherUnitAndOnlyWhatChangedOfTheSame) {
    manager->selectDevice(0);
    const QStringList all = takeSignals();
    EXPECT_EQ(all.first(), "deviceChanged");
    EXPECT_EQ(all.last(), "recognitionToleranceChanged");
    EXPECT_FALSE(all.contains("wiFiSetUp"));
    EXPECT_EQ(QSet<QString>(all.begin(), all.end()).size(), all.size()) << "each once";
    const QMetaObject* type = proxy.metaObject();
    for (int index = type->propertyOffset(); index < type->propertyCount(); ++index) {
        const QMetaProperty property = type->property(index);
        EXPECT_TRUE(property.isConstant() || property.hasNotifySignal()) << property.name();
    }
    manager->selectDevice(1);
    EXPECT_EQ(takeSignals(), all);
    refresh([](DeviceInfo& unit) { unit.setName("B"); });
    EXPECT_EQ(takeSignals(), QStringList({"nameChanged"})) << "a first answer is news";
    refresh([](DeviceInfo& unit) {
        unit.setMediaProgress(61, 3601);
        unit.setMotionDelay(7);
        unit.setName("B");
    });
    EXPECT_EQ(takeSignals(), QStringList({"detailsChanged", "mediaProgressChanged", "motionDelayChanged"}));
    EXPECT_EQ(value("mediaOffset"), "1:01");
    EXPECT_EQ(value("mediaDuration"), "1:00:01");
    refresh([](DeviceInfo& unit) { unit.setMediaProgress(59, -1); });
    EXPECT_EQ(value("mediaOffset"), "0:59");
    EXPECT_EQ(value("mediaDuration"), "--:--");
    takeSignals();
    manager->activateDeviceList();
    EXPECT_EQ(takeSignals(), all);
    EXPECT_EQ(value("mediaOffset"), "--:--");
}

TEST_F(DeviceInfoProxyTest, ShowsTheContentUpdateWithItsKindAndCode) {
    manager->selectDevice(0);
    const auto show = [&](int id, const char* code) {
        auto state = QSharedPointer<ContentUpdateState>::create();
        state->stateId = id;
        state->code = code;
        state->updatedTimestamp = "2026-01-02T03:04:05Z";
        refresh([&](DeviceInfo& unit) { unit.setContentUpdateState(state); });
        const auto* shown = value("contentUpdateState").value<ServiceStatus*>();
        return QStringLiteral("%1 %2").arg(shown->type()).arg(shown->text());
    };
    EXPECT_EQ(show(20, "0"), "2 Checking for new content");
    EXPECT_EQ(show(36, "0"), "2 Server content not ready");
    EXPECT_EQ(show(35, "12"), "1 Error downloading content\nCode: 12");
    EXPECT_EQ(show(77, "0"), "1 Unknown state");
    EXPECT_EQ(show(10, "0"), "0 ");
    EXPECT_NE(value("contentUpdateStateTime"), "N/A");
}

TEST_F(DeviceInfoProxyTest, ShowsTheSourceInUseAndHasAnOutputLevelledAutomatically) {
    manager->selectDevice(0);
    EXPECT_EQ(value("currCaptureDeviceIndex"), -1);
    refresh([](DeviceInfo& unit) {
        unit.setAutomaticVolumeControl(false);
        unit.setCaptureDevices(
            sources({{"a", "Regular", ""}, {"b", "Loopback", "OnCapture"}, {"c", "Regular", "OnCapture"}}));
    });
    EXPECT_EQ(value("captureDevices"), QStringList({"a", "b", "c"}));
    EXPECT_EQ(value("currCaptureDeviceIndex"), 1);
    EXPECT_EQ(value("isCaptureDeviceOut"), true);
    pass(100);
    EXPECT_FALSE(communicator->isIdle()) << "automatic volume control is asked for";
    communicator->cancelRequest();
    refresh([](DeviceInfo& unit) { unit.setCaptureDevices(sources({{"a", "loopback", "oncapture"}})); });
    EXPECT_EQ(value("currCaptureDeviceIndex"), -1) << "not the position of one that is gone";
    EXPECT_EQ(value("isCaptureDeviceOut"), false);
}

TEST_F(DeviceInfoProxyTest, NamesTheModesByTheirValueAndTheErrorByItsCode) {
    manager->selectDevice(0);
    const auto show = [&](QList<int> modes, int selected, const char* state, int code) {
        refresh([&](DeviceInfo& unit) {
            ExperienceModesState modesState;
            modesState.modeIds = std::move(modes);
            modesState.selectedModeId = selected;
            modesState.state = state;
            modesState.status = code;
            unit.setExperienceModes(modesState);
        });
        return value("experienceModeErrorMessage").toString();
    };
    EXPECT_EQ(show({1, 3, 7}, 3, "transitioning", 0), "OK");
    EXPECT_EQ(value("experienceModeList"),
              QStringList({"Orvex Coded Gaming", "Adaptive Gaming", "Unknown Mode - Update Your App"}));
    EXPECT_EQ(value("currExperienceModeIndex"), 1);
    EXPECT_EQ(value("experienceModeIsInTransition"), true);
    EXPECT_EQ(value("experienceModeDescription"),
              "Haptic experience using real-time events from game controller or keyboard.");
    const std::pair<int, const char*> messages[] = {
        {100, "Quivera Mode selection failed (100) - try restarting the Quivera app or device"},
        {103, "Error with Quivera agent (103) - try restarting the Quivera app"},
        {1100, "Error with Quivera agent (1100) - try restarting the Quivera app"},
        {200, "Oops, something went wrong (200) - try restarting the Quivera app or device"},
        {910, "No seat detected (910) - connect your device or check your connections"},
        {893, "Error with Adaptive Gaming setup (893) - try reinstalling the software"},
        {895, "Error with Adaptive Gaming (895) - try restarting your PC or reinstalling the software"},
        {-4, "Oops, something went wrong (-4) - try restarting your PC or reinstalling the software"},
    };
    for (const auto& [code, message] : messages) {
        EXPECT_EQ(show({0}, 2, "On", code), message);
    }
    EXPECT_EQ(value("currExperienceModeIndex"), -1) << "the selected one is not among those offered";
    EXPECT_EQ(value("experienceModeIsInTransition"), false);
}

TEST_F(DeviceInfoProxyTest, ReportsTheOutcomeOfJoiningANetworkOnceAndKeepsTheListWhileItIsRead) {
    manager->selectDevice(0);
    QSignalSpy outcome(&proxy, &DeviceInfoProxy::wiFiSetUp);
    refresh([](DeviceInfo& unit) { unit.setWiFiSetupResult(false); });
    EXPECT_EQ(outcome, QList<QVariantList>({{false}}));
    emit manager->selectedDeviceUpdated();
    refresh([](DeviceInfo& unit) { unit.setMotionDelay(1); });
    EXPECT_EQ(outcome.size(), 1);
    refresh([](DeviceInfo& unit) { unit.setOnline(false); });
    EXPECT_EQ(outcome.size(), 1) << "going offline is no outcome";

    refresh([](DeviceInfo& unit) { unit.setWiFiPoints({{"Home", true}, {"Café", false}}); });
    const auto points = value("wiFiPoints").value<QList<QObject*>>();
    ASSERT_EQ(points.size(), 2);
    EXPECT_EQ(points[1]->property("name"), "Café");
    EXPECT_EQ(points[0]->property("active"), true);
    const QPointer<QObject> read = points[0];
    refresh([](DeviceInfo& unit) { unit.setWiFiPoints({}); });
    EXPECT_NE(read, nullptr) << "a page may still hold it";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(read, nullptr);
}

TEST_F(DeviceInfoProxyTest, ListsTheMonitorAndTheAgentOfThisUserWithWhatToDo) {
    manager->selectDevice(0);
    auto health = QSharedPointer<SoftwareHealthStatus>::create();
    health->currentUserName = "Ann";
    health->entries = {{"quivera AGENT", 1, "down", "t", "ann"},
                       {"Quivera Agent", 3, "", "t", "Bob"},
                       {"Monitor Service", 3, "", "t", "SYSTEM"},
                       {"", 1, "", "t", "Ann"},
                       {"Something", 1, "", "t", "Ann"}};
    refresh([&](DeviceInfo& unit) { unit.setSoftwareHealthStatus(health); });
    const QVariantList shown = value("softwareHealthList").toList();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0].toMap()["softwareName"], "quivera AGENT");
    EXPECT_FALSE(shown[0].toMap()["errorHintMessage"].toString().isEmpty());
    EXPECT_EQ(shown[1].toMap()["userName"], "SYSTEM");
    EXPECT_EQ(shown[1].toMap()["errorHintMessage"], "");
}

} // namespace
} // namespace orvex::Test

#include "DeviceInfoProxyTest.moc"
