// The program's Communicator and a whole simulated unit: what the one asks, the other does, and the record
// shows.
#include "simulator/StateSettings.h"
#include "tests/messaging/CommunicatorFixture.h"

#include <array>
#include <iostream>
#include <random>

namespace orvex::Test {
namespace {

using Simulator::UnitState;

constexpr std::uint32_t everyGet =
    DeviceField::details | DeviceField::mask({DeviceField::Name, DeviceField::WiFiPoints,
                                              DeviceField::MediaList, DeviceField::DetailedStatus});

UnitOptions optionsFor(const std::string& state, bool accessPoint = false) {
    UnitOptions options;
    options.state = state;
    options.accessPoint = accessPoint;
    return options;
}

constexpr const char* quick =
    R"({"experience":{"transition":1},"wifi":{"leaveTime":5,"joinTime":20},"playback":{"speed":0}})";

std::shared_ptr<SeatInfo> editedSeat() {
    auto seat = std::make_shared<SeatInfo>();
    seat->index = 2;
    seat->muted = true;
    seat->chained = true;
    seat->motion = -17;
    seat->vibration = -3;
    return seat;
}

/// A change that the unit is asked for, and how the unit's state and the record show it.
struct Change {
    const char* name;
    std::shared_ptr<DeviceUpdateRequest> (*request)();
    int field; ///< read back
    bool (*inUnit)(const UnitState& state);
    bool (*inRecord)(const DeviceInfo& device);
    bool fromAccessPoint = false;
};

template <class Request, class... Arguments>
std::shared_ptr<DeviceUpdateRequest> make(Arguments... arguments) {
    return std::make_shared<Request>(arguments...);
}

const Change changes[] = {
    {"Name", [] { return make<SetNameRequest>(QStringLiteral("Row \"7\"")); }, DeviceField::Name,
     [](const UnitState& s) { return s.name == "Row \"7\""; },
     [](const DeviceInfo& d) { return d.name() == QLatin1String("Row \"7\""); }},
    {"WiFiLogin",
     [] {
         return make<SetWiFiLoginRequest>(QStringLiteral("Home Cinema"), QStringLiteral("second-row-left"));
     },
     DeviceField::Network,
     [](const UnitState& s) { return s.network.ssid == "Home Cinema" && !s.network.moving; },
     [](const DeviceInfo& d) {
         const auto network = d.networkStatus();
         return network && network->ssid == QLatin1String("Home Cinema") && network->wifiOnline &&
                !network->hotspotActive && network->interfaces.value(2).active;
     },
     true},
    {"Hotspot", [] { return make<ActivateHotspotRequest>(); }, DeviceField::Network,
     [](const UnitState& s) { return s.network.hotspotActive && !s.network.moving; },
     [](const DeviceInfo& d) {
         const auto network = d.networkStatus();
         return network && network->hotspotActive && !network->online && network->interfaces.value(0).active;
     }},
    {"CaptureDevice", [] { return make<SetCaptureDeviceRequest>(QStringLiteral("speakers-out")); },
     DeviceField::CaptureDevices, [](const UnitState& s) { return s.audio.selected == "speakers-out"; },
     [](const DeviceInfo& d) {
         const auto devices = d.captureDevices();
         return devices.size() == 4 && devices.back()->friendlyName == QLatin1String("OUT: Speakers") &&
                devices.back()->status == QLatin1String("OnCapture") &&
                devices.front()->status != QLatin1String("OnCapture");
     }},
    {"AdaptiveAudioParameters", [] { return make<SetAdaptiveAudioParametersRequest>(1); },
     DeviceField::AdaptiveAudioParameters, [](const UnitState& s) { return s.audio.preMixType == 1; },
     [](const DeviceInfo& d) { return d.adaptiveAudioParameters() == 1; }},
    {"AutomaticVolumeControl", [] { return make<SetAutomaticVolumeControlRequest>(false); },
     DeviceField::AutomaticVolumeControl, [](const UnitState& s) { return !s.audio.automaticVolume; },
     [](const DeviceInfo& d) { return !d.automaticVolumeControl(); }},
    {"CaptureVolume", [] { return make<SetCaptureVolumeRequest>(-13, 0); }, DeviceField::CaptureVolume,
     [](const UnitState& s) { return s.audio.volumeIn(0) == -13; },
     [](const DeviceInfo& d) {
         const auto volume = d.captureVolume();
         return volume.volume == -13 && volume.experienceModeId == 0 && volume.min == -20;
     }},
    {"ExperienceMode", [] { return make<SetExperienceModeRequest>(3); }, DeviceField::ExperienceModes,
     [](const UnitState& s) { return s.experience.selected == 3 && s.experience.state == "On"; },
     [](const DeviceInfo& d) {
         const auto modes = d.experienceModes();
         return modes.selectedModeId == 3 && modes.state == QLatin1String("On") && modes.status == 0 &&
                modes.modeIds == QList<int>{0, 1, 2, 3};
     }},
    {"MotionDelay", [] { return make<SetMotionDelayRequest>(-40); }, DeviceField::MotionDelay,
     [](const UnitState& s) { return s.motionDelay == -40; },
     [](const DeviceInfo& d) { return d.motionDelay() == -40; }},
    {"RecognitionTolerance", [] { return make<SetRecognitionToleranceRequest>(25); },
     DeviceField::RecognitionTolerance, [](const UnitState& s) { return s.recognitionTolerance == 25; },
     [](const DeviceInfo& d) { return d.recognitionTolerance() == 25; }},
    {"SeatSetting", [] { return make<SetSeatSettingRequest>(editedSeat()); }, DeviceField::Seats,
     [](const UnitState& s) { return s.seats[1].muted && s.seats[1].motion == -17; },
     [](const DeviceInfo& d) {
         const auto seats = d.seats();
         return seats.size() == 2 && !seats[0]->muted && seats[1]->muted && seats[1]->chained &&
                seats[1]->motion == -17 && seats[1]->vibration == -3;
     }},
    {"ContentUpdate", [] { return make<SetContentUpdateRequest>(); }, DeviceField::ContentUpdate,
     [](const UnitState& s) { return s.content.id != 10; },
     [](const DeviceInfo& d) { return d.contentUpdateState().stateId != 10; }},
};

class UnitChange : public CommunicatorFixture, public testing::WithParamInterface<Change> {};

TEST_P(UnitChange, IsDoneAndReadBack) {
    const Change& change = GetParam();
    const RunningUnit unit(host, "Sofa", optionsFor(quick, change.fromAccessPoint));
    const auto device = unit.device();
    ASSERT_TRUE(request(device, DeviceField::mask({change.field})));
    ASSERT_FALSE(change.inUnit(unit.state()));
    ASSERT_FALSE(change.inRecord(*device));
    const auto asked = change.request();
    // Read while it is there: the unit that joins a network is gone soon after, and the record empty.
    std::atomic<bool> joined{false};
    const auto watching = QObject::connect(
        communicator.get(), &Communicator::requestCompleteInternal, communicator.get(),
        [&joined, &device] { joined = device->wiFiSetupResult(); }, Qt::DirectConnection);
    ASSERT_TRUE(request(device, asked->refreshFields, 20000, asked));
    // A unit that opens its own access point may say so before it drops the connection, or only drop it.
    if (asked->requestType != DeviceUpdateRequest::ActivateHotspot) {
        EXPECT_EQ(joined, asked->requestType == DeviceUpdateRequest::SetWiFiLogin);
    }
    QObject::disconnect(watching);
    ASSERT_TRUE(eventually([&] { return change.inUnit(unit.state()); }));
    // A unit that changes networks drops its clients.
    EXPECT_TRUE(eventually(
        [&] { return request(device, DeviceField::mask({change.field})) && change.inRecord(*device); }));
}

INSTANTIATE_TEST_SUITE_P(EveryRequest, UnitChange, testing::ValuesIn(changes),
                         [](const auto& parameters) { return std::string(parameters.param.name); });

class UnitExchange : public CommunicatorFixture {};

TEST_F(UnitExchange, EveryFieldShowsTheUnitsState) {
    const RunningUnit unit(host, "Sofa", optionsFor(R"({
        "network":{"ssid":"Net"}, "wifi":{"networks":[{"ssid":"Net","key":"k"},{"ssid":"Other","key":""}]},
        "software":{"version":"9.8.7"},
        "content":{"stateId":35,"code":"3502","message":"no","updatedTimestamp":"2024-02-29T01:02:03Z"},
        "playback":{"title":"T","offset":61,"duration":99,"speed":0,"audioState":"ident_success",
                    "motionCode":"not_available"},
        "audio":{"devices":[{"name":"B","identification":"b"},{"name":"A","identification":"a","loopback":true}],
                 "selected":"a","automaticVolume":false,"preMixType":1,
                 "minimumVolume":-9,"maximumVolume":9,"volumeStep":3},
        "experience":{"modes":[5,2],"selected":2,"status":893}, "volume":-6,
        "seats":[{"index":1,"muted":true,"motion":-2.5,"condition":"fault"}],
        "motionDelay":70, "recognitionTolerance":7, "hardware":{"temperature":51,"load":21.456},
        "health":{"overall":2,"user":"u","entries":[{"name":"Quivera Agent","user":"u","status":1}]},
        "profile":{"id":"p","name":"P","type":2,"version":8}, "mediaCount":3})"));
    const auto device = unit.device();
    ASSERT_TRUE(request(device, everyGet));
    EXPECT_EQ(device->name(), QLatin1String("Sofa"));
    EXPECT_EQ(device->softwareVersion(), QLatin1String("9.8.7"));
    EXPECT_EQ(device->libraryUpdateTime(), QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3), Qt::UTC));
    EXPECT_EQ(device->contentUpdateState().stateId, 35);
    EXPECT_EQ(device->contentUpdateState().code, QLatin1String("3502"));
    ASSERT_TRUE(device->networkStatus());
    EXPECT_EQ(device->networkStatus()->ssid, QLatin1String("Net"));
    EXPECT_EQ(device->networkStatus()->interfaces.value(2).ip.toStdString(), unit.options().address);
    EXPECT_EQ(device->wiFiPoints(), (QVector<WiFiListEntry>{{"Net", true}, {"Other", false}}));
    EXPECT_EQ(device->adaptiveGamingSelectedProfile(), (AdaptiveGamingSelectedProfile{"p", "P", 2, 8}));
    const auto health = device->softwareHealthStatus();
    EXPECT_EQ(health.overallState, 2);
    ASSERT_EQ(health.entries.size(), 1);
    EXPECT_EQ(health.entries[0].status, 1);
    EXPECT_EQ(health.entries[0].userName, health.currentUserName);
    const auto devices = device->captureDevices();
    ASSERT_EQ(devices.size(), 2U);
    EXPECT_EQ(devices[0]->friendlyName, QLatin1String("IN: B"));
    EXPECT_EQ(devices[1]->friendlyName, QLatin1String("OUT: A"));
    EXPECT_EQ(devices[1]->status, QLatin1String("OnCapture"));
    EXPECT_EQ(device->adaptiveAudioParameters(), 1);
    EXPECT_FALSE(device->automaticVolumeControl());
    EXPECT_EQ(device->captureVolume(), (CaptureVolumeState{2, -6, 3, -9, 9}));
    EXPECT_EQ(device->experienceModes(),
              (ExperienceModesState{{2, 5}, 2, "On", 893, "Adaptive gaming is not set up"}));
    EXPECT_EQ(device->audioSourceStatus().type, 3);
    EXPECT_EQ(device->motionCodeStatus().type, 2);
    EXPECT_EQ(device->mediaTitle(), QLatin1String("T"));
    EXPECT_EQ(device->mediaOffset(), 61);
    EXPECT_EQ(device->mediaDuration(), 99);
    EXPECT_EQ(device->motionDelay(), 70);
    EXPECT_EQ(device->recognitionTolerance(), 7);
    const auto seats = device->seats();
    ASSERT_EQ(seats.size(), 2U);
    EXPECT_TRUE(seats[0]->muted);
    EXPECT_EQ(seats[0]->motion, -2);
    EXPECT_EQ(seats[0]->statusCode, QLatin1String("10"));
    ASSERT_TRUE(device->mediaList());
    EXPECT_EQ(device->mediaList()->media.size(), 3);
    ASSERT_TRUE(device->detailedStatusInfo());
    const auto& controller = *device->detailedStatusInfo()->modules.at(0);
    EXPECT_EQ(controller.properties.back(), (std::pair<QString, QString>("Load (%)", "21.46")));
    EXPECT_EQ(controller.fields.at(2).value, QLatin1String("51"));
    EXPECT_EQ(controller.subModules.at(0)->subModules.size(), 2U) << "the seats of the hub";
}

/// A unit whose every value tells which one it is.
struct MarkedUnit {
    MarkedUnit(Simulator::SimulatorHost& host, int unitNumber)
        : number(unitNumber)
        , mark("unit" + std::to_string(unitNumber))
        , unit(host, mark, options()) {}

    UnitOptions options() const {
        std::string state = R"({"network":{"ssid":"@"},"wifi":{"networks":[{"ssid":"@","key":""}]},
            "software":{"version":"@"},"content":{"message":"@","updatedTimestamp":"200#-01-01T00:00:00Z"},
            "playback":{"title":"@","offset":#,"duration":10#,"speed":0,"audioState":"ident_success",
                        "motionCode":"available"},
            "audio":{"devices":[{"name":"@","identification":"@"}],"preMixType":#},
            "experience":{"modes":[#],"selected":#},"volume":#,"motionDelay":#,"recognitionTolerance":#,
            "health":{"user":"@"},"profile":{"name":"@"},"mediaCount":#})";
        for (std::size_t at = 0; (at = state.find_first_of("@#", at)) != std::string::npos;) {
            state.replace(at, 1, state[at] == '@' ? mark : std::to_string(number));
        }
        UnitOptions options = optionsFor(state);
        options.serial = mark;
        options.seats = static_cast<std::size_t>(number);
        return options;
    }

    /// Everything in the record that is neither this unit's nor the value of a field not read.
    QStringList strangers() const {
        const DeviceInfo& d = *device;
        QStringList found;
        const QString own = QString::fromStdString(mark);
        const auto text = [&](const char* what, const QString& value) {
            if (!value.isEmpty() && value != own) {
                found << QStringLiteral("%1: %2").arg(QLatin1String(what), value);
            }
        };
        const auto value = [&](const char* what, int actual, int wanted, int unread) {
            if (actual != wanted && actual != unread) {
                found << QStringLiteral("%1: %2").arg(QLatin1String(what)).arg(actual);
            }
        };
        text("name", d.name());
        text("version", d.softwareVersion());
        text("content", d.contentUpdateState().message);
        text("ssid", d.networkStatus() ? d.networkStatus()->ssid : QString());
        text("profile", d.adaptiveGamingSelectedProfile().name);
        text("health", d.softwareHealthStatus().currentUserName);
        text("title", d.mediaTitle());
        for (const auto& point : d.wiFiPoints()) {
            text("point", point.name);
        }
        for (const auto& source : d.captureDevices()) {
            text("source", source->identification);
        }
        if (const auto info = d.detailedStatusInfo(); info && !info->modules.empty()) {
            const auto& properties = info->modules[0]->properties;
            text("serial", properties.size() > 2 ? properties[2].second : QString());
        }
        if (d.libraryUpdateTime().isValid()) {
            value("year", d.libraryUpdateTime().date().year(), 2000 + number, 0);
        }
        value("pre-mix", d.adaptiveAudioParameters(), number, 0);
        value("volume", d.captureVolume().volume, number, 0);
        value("volume's mode", d.captureVolume().experienceModeId, number, 0);
        value("mode", d.experienceModes().selectedModeId, number, 0);
        value("offset", d.mediaOffset(), number, d.mediaOffset() == 0 ? 0 : -1);
        value("duration", d.mediaDuration(), 100 + number, d.mediaDuration() == 0 ? 0 : -1);
        value("delay", d.motionDelay(), number, 0);
        value("tolerance", d.recognitionTolerance(), number, 0);
        value("seats", static_cast<int>(d.seats().size()), number, 0);
        value("media", d.mediaList() ? d.mediaList()->media.size() : 0, number, 0);
        return found;
    }

    int number;
    std::string mark;
    RunningUnit unit;
    std::shared_ptr<DeviceInfo> device = unit.device();
};

struct Asking {
    std::uint32_t fields;
    const char* type;
};

constexpr Asking askings[] = {
    {DeviceField::mask({DeviceField::Name}), "GetKelmName"},
    {DeviceField::mask({DeviceField::SoftwareVersion}), "GetUpgrade"},
    {DeviceField::mask({DeviceField::LibraryUpdateTime}), "GetUpdate"},
    {DeviceField::mask({DeviceField::Network}), "GetNetworkState"},
    {DeviceField::mask({DeviceField::WiFiPoints}), "GetWifiList"},
    {DeviceField::mask({DeviceField::AdaptiveGamingProfile}), "GetAdaptiveGamingSelectedProfile"},
    {DeviceField::mask({DeviceField::SoftwareHealth}), "GetSoftwareHealthStatus"},
    {DeviceField::mask({DeviceField::CaptureDevices}), "GetCaptureDevices"},
    {DeviceField::mask({DeviceField::AdaptiveAudioParameters}), "GetAdaptiveAudioParameters"},
    {DeviceField::mask({DeviceField::AutomaticVolumeControl}), "GetAutomaticVolumeControl"},
    {DeviceField::mask({DeviceField::CaptureVolume}), "GetCaptureVolume"},
    {DeviceField::mask({DeviceField::ExperienceModes}), "GetExperienceModes"},
    {DeviceField::mask({DeviceField::MotionCodeStatus, DeviceField::AudioSourceStatus,
                        DeviceField::MediaTitle, DeviceField::MediaProgress}),
     "GetMediaStatus"},
    {DeviceField::mask({DeviceField::MotionDelay}), "GetMotionDelay"},
    {DeviceField::mask({DeviceField::RecognitionTolerance}), "GetRecognitionTolerance"},
    {DeviceField::mask({DeviceField::Seats}), "GetSeatStatus"},
    {DeviceField::mask({DeviceField::MediaList}), "GetMediaListNotification"},
    {DeviceField::mask({DeviceField::DetailedStatus}), "GetHapticSystemStatus"},
    {DeviceField::mask({DeviceField::ContentUpdate}), "GetContentUpdateState"},
};

struct Mishap {
    AnswerFault fault;
    bool unanswered; ///< the request can only end by its time-out
};

constexpr Mishap mishaps[] = {
    {AnswerFault::None, false},       {AnswerFault::None, false},  {AnswerFault::Duplicate, false},
    {AnswerFault::WrongTypes, false}, {AnswerFault::Close, false}, {AnswerFault::TruncateBody, false},
    {AnswerFault::Reset, false},      {AnswerFault::Drop, true},   {AnswerFault::OtherMessage, true},
    {AnswerFault::Error, true},       {AnswerFault::Garble, true},
};

TEST_F(UnitExchange, AThousandRequestsEndOnceEachAndUnitsNeverMix) {
    constexpr unsigned int seed = 20251103;
    constexpr int rounds = 1000;
    constexpr int patientRounds = 12; ///< in which a time-out is waited for, half a second each
    std::cout << "seed " << seed << std::endl;
    std::mt19937 random(seed); // its numbers are the same everywhere, unlike those of distributions
    const auto upTo = [&random](unsigned int limit) { return static_cast<int>(random() % limit); };

    std::array<MarkedUnit, 3> units{MarkedUnit(host, 1), MarkedUnit(host, 2), MarkedUnit(host, 3)};
    int expected = 0;
    int succeeded = 0;
    int patiently = 0;
    for (int round = 0; round < rounds; ++round) {
        MarkedUnit& chosen = units.at(static_cast<std::size_t>(upTo(3)));
        std::uint32_t fields = 0;
        for (int i = upTo(6); i >= 0; --i) {
            fields |= askings[upTo(std::size(askings))].fields;
        }
        const Asking& spoiled = askings[upTo(std::size(askings))];
        const Mishap& mishap = mishaps[upTo(std::size(mishaps))];
        Faults faults;
        faults.answer = mishap.fault;
        faults.types = {spoiled.type};
        faults.delay = std::chrono::milliseconds(upTo(3));
        chosen.unit.setFaults(faults);

        const bool unanswered = mishap.unanswered && (fields & spoiled.fields) != 0;
        const bool waits = !unanswered ? upTo(5) != 0 : patiently < patientRounds && upTo(4) == 0;
        patiently += unanswered && waits ? 1 : 0;
        std::shared_ptr<DeviceUpdateRequest> update;
        if (upTo(4) == 0) {
            update = std::make_shared<SetMotionDelayRequest>(chosen.number);
        }
        communicator->startRequest(chosen.device, fields, update, unanswered && waits ? 500 : 20000);
        ++expected;
        if (upTo(20) == 0) {
            chosen.unit.closeConnections();
        }
        if (!waits) {
            for (int turns = upTo(40); turns > 0 && !communicator->isIdle(); --turns) {
                QTest::qWait(0); // lets some of the answers in, by chance
            }
            communicator->cancelRequest();
        }
        while (ended.size() < expected && ended.wait(patience)) {
        }
        ASSERT_GE(ended.size(), expected) << "lost in round " << round;
        ASSERT_EQ(ended.size(), expected) << "ended twice in round " << round;
        ASSERT_TRUE(communicator->isIdle()) << round;
        succeeded += ended.last().first().toBool() ? 1 : 0;
        for (const MarkedUnit& each : units) {
            ASSERT_EQ(each.strangers(), QStringList()) << each.mark << " in round " << round;
        }
    }
    EXPECT_GT(succeeded, rounds / 3);
    EXPECT_EQ(patiently, patientRounds);
    EXPECT_GT(log.count("timeout. Missing fields"), 0U);
}

} // namespace
} // namespace orvex::Test
