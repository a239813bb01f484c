// What a unit answers and does, topic by topic, seen by a client that shares no code with it.
#include "Exchange.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"
#include "simulator/StateSettings.h"

#include <set>
#include <vector>

using namespace Simulator;
using namespace std::chrono_literals;

namespace {

constexpr const char* getTypes[] = {"GetKelmName",
                                    "GetNetworkState",
                                    "GetWifiList",
                                    "GetCaptureDevices",
                                    "GetCaptureVolume",
                                    "GetAutomaticVolumeControl",
                                    "GetAdaptiveAudioParameters",
                                    "GetExperienceModes",
                                    "GetSeatStatus",
                                    "GetMotionDelay",
                                    "GetRecognitionTolerance",
                                    "GetHapticSystemStatus",
                                    "GetSoftwareHealthStatus",
                                    "GetAdaptiveGamingSelectedProfile",
                                    "GetMediaStatus"};

class Messages : public testing::Test {
protected:
    Messages() {
        m_unit.start();
        EXPECT_EQ(m_client.connect("127.0.0.1", m_unit.port()), "");
        EXPECT_EQ(m_watcher.connect("127.0.0.1", m_unit.port()), "");
    }

    static UnitOptions quickUnit() {
        UnitOptions options;
        options.state = R"({"experience":{"transition":20},"wifi":{"leaveTime":5,"joinTime":30},
            "playback":{"speed":0}})";
        return options;
    }

    void apply(const std::string& settings) {
        m_unit.changeState([&settings](UnitState& state) { applySettings(state, settings, "state"); });
    }

    std::string read(const std::string& type) { return ask(m_client, type).bodyText; }

    std::vector<std::string> everything() {
        std::vector<std::string> bodies;
        for (const char* const type : getTypes)
            bodies.push_back(read(type));
        return bodies;
    }

    /// The next notification is of this type; its body.
    std::string told(const std::string& type) {
        const Frame frame = receive(m_watcher);
        EXPECT_EQ(frame.word("kind"), "notification");
        EXPECT_EQ(frame.word("type"), type);
        return frame.bodyText;
    }

    SimulatorHost m_host{HostOptions{false, 0}};
    SimulatedUnit m_unit{m_host, quickUnit()};
    ForeignClient m_client;
    ForeignClient m_watcher;
};

} // namespace

TEST_F(Messages, RefuseWhatCannotBeAndChangeNothing) {
    apply(R"({"seats":[{"index":2,"condition":"noCommunication"}],"audio":{"volumeStep":4}})");
    const auto before = everything();
    struct Bad {
        const char* type;
        const char* body;
        int status;
    };
    const Bad table[] = {
        {"SetCaptureDevicesMode", "", 2},
        {"SetCaptureDevicesMode", R"({"identification":5,"mode":"manual"})", 2},
        {"SetCaptureDevicesMode", R"({"identification":"line-in"})", 2},
        {"SetCaptureDevicesMode", R"({"identification":"Line Input","mode":"manual"})", 3},
        {"SetCaptureDevicesMode", R"({"identification":"optical-in","mode":"manual"})", 3},
        {"SetCaptureDevicesMode", R"({"identification":"line-in","mode":"Manual"})", 3},
        {"SetCaptureVolume", R"({"volume":"0","experienceModeId":0})", 2},
        {"SetCaptureVolume", R"({"volume":0.5,"experienceModeId":0})", 2},
        {"SetCaptureVolume", R"({"volume":0})", 2},
        {"SetCaptureVolume", R"({"volume":24,"experienceModeId":0})", 3},
        {"SetCaptureVolume", R"({"volume":-2147483648,"experienceModeId":0})", 3},
        {"SetCaptureVolume", R"({"volume":2,"experienceModeId":0})", 3},
        {"SetCaptureVolume", R"({"volume":0,"experienceModeId":7})", 3},
        {"SetAutomaticVolumeControl", R"({"enabled":false})", 2},
        {"SetAutomaticVolumeControl", R"({"enable":0})", 2},
        {"SetAdaptiveAudioParameters", R"({"preMixType":true})", 2},
        {"SetAdaptiveAudioParameters", R"({"preMixType":2})", 3},
        {"SetExperienceMode", R"({"experienceMode":"1"})", 2},
        {"SetExperienceMode", R"({"experienceMode":4})", 3},
        {"SetSeatSetting", R"({"seat":[]})", 2},
        {"SetSeatSetting", R"({"seat":{"index":1,"muted":true,"chained":true,"motion":-1}})", 2},
        {"SetSeatSetting", R"({"seat":{"index":1,"muted":1,"chained":true,"motion":-1,"vibration":0}})", 2},
        {"SetSeatSetting", R"({"seat":{"index":3,"muted":true,"chained":true,"motion":-1,"vibration":0}})",
         3},
        {"SetSeatSetting", R"({"seat":{"index":1,"muted":true,"chained":true,"motion":-21,"vibration":0}})",
         3},
        {"SetSeatSetting", R"({"seat":{"index":1,"muted":true,"chained":true,"motion":0,"vibration":0.1}})",
         3},
        {"SetSeatSetting", R"({"seat":{"index":2,"muted":true,"chained":true,"motion":0,"vibration":0}})", 4},
        {"SetMotionDelay", R"({"motionDelay":null})", 2},
        {"SetMotionDelay", R"({"motionDelay":1001})", 3},
        {"SetRecognitionTolerance", R"({"recognitionTolerance":1.5})", 2},
        {"SetRecognitionTolerance", R"({"recognitionTolerance":-1})", 3},
        {"SetWifiSetting", R"({"ssid":"Living Room","key":""})", 2},
        {"SetWifiSetting", R"({"setWifi":{"ssid":"Living Room"}})", 2},
        {"SetWifiSetting", R"({"setWifi":{"clear":false}})", 2},
        {"SetWifiSetting", R"({"setWifi":{"ssid":"","key":"x"}})", 3},
    };
    for (const Bad& bad : table) {
        const Frame answer = ask(m_client, bad.type, bad.body);
        EXPECT_EQ(answer.word("kind"), "error") << bad.type << bad.body;
        EXPECT_EQ(answer.status(), bad.status) << bad.type << bad.body;
        EXPECT_FALSE(answer.word("text").empty()) << bad.type << bad.body;
    }
    const std::string behindZero = std::string(R"({"motionDelay":1})") + '\0' + "rest";
    EXPECT_EQ(ask(m_client, "SetMotionDelay", behindZero).status(), 2);
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(m_unit.push("GetKelmName", "{}"), 2U);
    told("GetKelmName"); // nobody was told of anything before
}

TEST_F(Messages, TakeSettingsAndTellTheOthers) {
    struct Good {
        const char* set;
        const char* body;
        const char* get;
        const char* part; ///< of the answer then
    };
    const Good table[] = {
        {"SetCaptureDevicesMode", R"({"identification":"line-in","mode":"manual"})", "GetCaptureDevices",
         R"("identification":"line-in","interface":"Analogue","loopback":"Regular","status":"OnCapture")"},
        {"SetCaptureDevicesMode", R"({"mode":"automatic"})", "GetCaptureDevices",
         R"("identification":"hdmi-in-1","interface":"HDMI","loopback":"Regular","status":"OnCapture")"},
        {"SetCaptureVolume", R"({"volume":-20,"experienceModeId":0})", "GetCaptureVolume",
         R"({"experienceModeId":0,"volume":-20,"step":1,"min":-20,"max":20})"},
        {"SetAutomaticVolumeControl", R"({"enable":false})", "GetAutomaticVolumeControl",
         R"({"enabled":false})"},
        {"SetAdaptiveAudioParameters", R"({"preMixType":1})", "GetAdaptiveAudioParameters",
         R"({"preMixType":1})"},
        {"SetSeatSetting",
         R"({"seat":{"index":2,"muted":true,"chained":true,"motion":-20.0,"vibration":-2.5}})",
         "GetSeatStatus",
         R"({"index":2,"muted":true,"chained":true,"motion":-20.0,"vibration":-2.5,"overallState":{"value":"0")"},
        {"SetMotionDelay", R"({"motionDelay":-250})", "GetMotionDelay", R"({"motionDelay":-250})"},
        {"SetRecognitionTolerance", R"({"recognitionTolerance":60})", "GetRecognitionTolerance",
         R"({"recognitionTolerance":60})"},
    };
    for (const Good& good : table) {
        EXPECT_EQ(ask(m_client, good.set, good.body).status(), 0) << good.set;
        const std::string body = read(good.get);
        EXPECT_NE(body.find(good.part), std::string::npos) << body;
        EXPECT_EQ(told(good.get), body);
    }
}

TEST_F(Messages, AModeChangeTakesTimeAndEndsOneWayOrTheOther) {
    apply(R"({"volume":7})");
    for (const int failure : {0, 101, 1102}) {
        apply(R"({"experience":{"selected":0,"status":0,"failure":)" + std::to_string(failure) + "}}");
        EXPECT_EQ(ask(m_client, "SetExperienceMode", R"({"experienceMode":2})").status(), 0);
        EXPECT_EQ(told("GetExperienceModes"),
                  R"({"selectedModeId":2,"state":"Transitioning","status":0,"statusMessage":"Ok",)"
                  R"("experienceModes":[{"id":0},{"id":1},{"id":2},{"id":3}]})");
        EXPECT_EQ(ask(m_client, "SetExperienceMode", R"({"experienceMode":1})").status(), 3)
            << "not while another change is under way";
        const Frame end = receive(m_client);
        EXPECT_EQ(end.word("type"), "GetExperienceModes") << "also who asked is told of the end";
        EXPECT_STREQ(end.body["state"].GetString(), "On");
        EXPECT_EQ(end.body["status"].GetInt(), failure);
        EXPECT_EQ(end.body["selectedModeId"].GetInt(), failure == 0 ? 2 : 0);
        EXPECT_EQ(Frame("\n" + receive(m_client).bodyText).body["volume"].GetInt(), failure == 0 ? 0 : 7);
        told("GetExperienceModes");
        told("GetCaptureVolume");
    }
}

TEST_F(Messages, AFaultySeatShowsInTheDetailedStatus) {
    const auto states = [this] {
        const Frame frame = ask(m_client, "GetHapticSystemStatus");
        const auto overall = [](const rapidjson::Value& module) {
            for (const auto& member : module.GetObject())
                if (std::string(member.name.GetString()) == "Field" && member.value["Id"].GetInt() == 1)
                    return std::string(member.value["Value"].GetString());
            return std::string();
        };
        const auto& hub = frame.body["Controller"]["Hub"];
        return overall(hub) + ' ' + overall(hub["Seat 1"]) + ' ' + overall(hub["Seat 2"]) + ' ' +
               (hub["Seat 2"].HasMember("Actuator Rear Right") ? overall(hub["Seat 2"]["Actuator Rear Right"])
                                                               : "none");
    };
    EXPECT_EQ(states(), "0 0 0 0");
    apply(R"({"seats":[{"index":2,"condition":"transition"}]})");
    EXPECT_EQ(states(), "20 0 20 0");
    apply(R"({"seats":[{"index":2,"condition":"noPower"}]})");
    EXPECT_EQ(states(), "10 0 30 30");
    EXPECT_NE(read("GetSeatStatus")
                  .find(R"("overallState":{"value":"30","description":"No Power or Actuator Disconnected"})"),
              std::string::npos);
    apply(R"({"seats":[{"index":2,"condition":"noCommunication"}]})");
    EXPECT_EQ(states(), "10 0 40 none");
}

TEST_F(Messages, PlaybackGoesOnToTheNextTitle) {
    const auto status = [this] { return Frame("\n" + read("GetMediaStatus")); };
    const Frame first = status();
    const std::string title = first.body["mediaStatus"]["mediaTitle"].GetString();
    EXPECT_EQ(title, "The Silent Harbour");
    EXPECT_STREQ(first.body["mediaStatus"]["mediaIdState"].GetString(), "ident_success");
    EXPECT_EQ(first.body["mediaStatus"]["mediaOffset"].GetInt(), 0);
    apply(R"({"playback":{"speed":1000}})");
    EXPECT_TRUE(eventually([&] { return status().body["mediaStatus"]["mediaOffset"].GetInt() > 50; }));
    apply(R"({"playback":{"offset":4700,"speed":2000}})");
    const std::string next = told("GetMediaStatus");
    EXPECT_NE(next.find("\"The Crimson Harbour\""), std::string::npos) << next;
    EXPECT_EQ(receive(m_client).bodyText, next);
    apply(R"({"playback":{"offset":9,"speed":0,"audioState":"lost_audio","motionCode":"not_available"}})");
    EXPECT_EQ(status().body["mediaStatus"]["mediaOffset"].GetInt(), 9) << "it stands still";
}

TEST_F(Messages, AUnitChangesNetworks) {
    const auto join = [](const std::string& ssid, const std::string& key) {
        return R"({"setWifi":{"ssid":")" + ssid + R"(","key":")" + key + "\"}}";
    };
    const auto reconnect = [this](ForeignClient& client) {
        EXPECT_TRUE(eventually([this] { return !m_unit.state().network.moving; }));
        ASSERT_EQ(client.connect(m_unit.address(), m_unit.port()), "");
    };
    for (const char* const key : {"", "wrong", "SECOND-ROW-LEFT"})
        EXPECT_EQ(ask(m_client, "SetWifiSetting", join("Home Cinema", key)).bodyText,
                  R"({"setWifi":{"result":false}})");
    EXPECT_EQ(ask(m_client, "SetWifiSetting", join("Nowhere", "")).bodyText,
              R"({"setWifi":{"result":false}})");

    apply(R"({"wifi":{"accessPointAddress":"127.0.0.77"}})");
    EXPECT_EQ(ask(m_client, "SetWifiSetting", R"({"setWifi":{"clear":true}})").bodyText,
              R"({"setWifi":{"result":true}})");
    EXPECT_FALSE(m_client.receive()) << "the connection ends with the network";
    ForeignClient alone;
    reconnect(alone);
    EXPECT_EQ(m_unit.address(), "127.0.0.77");
    const Frame state = ask(alone, "GetNetworkState");
    EXPECT_TRUE(state.body["hotspot_active"].GetBool());
    EXPECT_STREQ(state.body["addresses"][0]["ip"].GetString(), "127.0.0.77");
    EXPECT_EQ(ask(alone, "GetWifiList").bodyText.find("true"), std::string::npos) << "it is on none";

    apply(R"({"wifi":{"joinedAddress":"127.0.0.78","fault":"leavesUnanswered"}})");
    EXPECT_EQ(alone.send(request("SetWifiSetting", join("Home Cinema", "second-row-left"))), "");
    EXPECT_FALSE(alone.receive()) << "gone before it answers";
    ForeignClient joined;
    reconnect(joined);
    EXPECT_EQ(m_unit.address(), "127.0.0.78");
    const Frame network = ask(joined, "GetNetworkState");
    EXPECT_STREQ(network.body["ssid"].GetString(), "Home Cinema");
    EXPECT_STREQ(network.body["addresses"][2]["ip"].GetString(), "127.0.0.78");
    EXPECT_NE(ask(joined, "GetWifiList").bodyText.find(R"({"ssid":"Home Cinema","active":true})"),
              std::string::npos);

    apply(R"({"wifi":{"fault":"neverReturns"}})");
    EXPECT_EQ(ask(joined, "SetWifiSetting", join("Living Room", "sofa-and-popcorn")).status(), 0);
    EXPECT_FALSE(joined.receive());
    EXPECT_TRUE(eventually([this] { return m_unit.clients() == 0; }));
    ForeignClient late;
    EXPECT_NE(late.connectTcp("127.0.0.78", m_unit.port()), "");
    EXPECT_TRUE(m_unit.isRunning());

    apply(
        R"({"wifi":{"fault":"none"},"network":{"reachable":true,"hotspotActive":true,"wifiOnline":false}})");
    ForeignClient back;
    reconnect(back);
    const Frame byHand = ask(back, "GetNetworkState");
    EXPECT_STREQ(byHand.body["addresses"][0]["ip"].GetString(), "127.0.0.78");
    EXPECT_STREQ(byHand.body["addresses"][2]["ip"].GetString(), "") << "the address goes with the flags";
    EXPECT_EQ(ask(back, "SetWifiSetting", join("Living Room", "sofa-and-popcorn")).status(), 0)
        << "no change is under way any more";
}

TEST_F(Messages, AnUpdateThatIsSetGoesOnFromThereAndRunsOnce) {
    apply(R"({"content":{"stateId":50,"percent":100,"pace":1}})");
    EXPECT_NE(told("GetContentUpdateState").find(R"("stateId":10)"), std::string::npos);
    receive(m_client);

    m_unit.changeState([](UnitState& state) {
        applySettings(state, R"({"content":{"stateId":30,"percent":0,"pace":1}})", "state");
        applySettings(state, R"({"content":{"stateId":30,"percent":20,"pace":3600000}})", "state");
    });
    // The end of a change of mode comes long after the first one's step was due.
    EXPECT_EQ(ask(m_client, "SetExperienceMode", R"({"experienceMode":2})").status(), 0);
    EXPECT_EQ(receive(m_client).word("type"), "GetExperienceModes");
    EXPECT_EQ(m_unit.state().content.percent, 20);
}
