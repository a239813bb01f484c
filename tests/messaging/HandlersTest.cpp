#include "messaging/handlers/FirstIntegerHandler.h"
#include "messaging/handlers/GetDetailedStatusNotificationHandler.h"
#include "messaging/handlers/GetKELMNetworkStateHandler.h"
#include "messaging/handlers/GetKelmNameNotificationHandler.h"
#include "messaging/handlers/GetSeatStatusNotificationHandler.h"
#include "messaging/handlers/GetSoftwareHealthStatusHandler.h"
#include "messaging/handlers/GetUpgradeAndUpdateNotificationHandler.h"
#include "messaging/handlers/GetWifiListHandler.h"
#include "messaging/handlers/MediaListReader.h"
#include "messaging/handlers/WifiSettingHandler.h"
#include "messaging/records/RecordTypes.h"
#include "tests/device/ProgramLogCapture.h"
#include "tests/messaging/HandlerResults.h"

#include <gtest/gtest.h>

namespace orvex {
namespace {

using namespace Velto::Messaging;
using Test::nested;
using Test::record;
using Test::response;
using Test::signalledValue;
using Test::values;

TEST(NameHandlerTest, ReadsTheFirstMemberOnly) {
    GetKelmNameNotificationHandler handler;
    const auto name = [&](const std::string& body) {
        return values(handler, "GetKelmName", body).value(QStringLiteral("GetKelmName")).toString();
    };
    EXPECT_EQ(name(R"({"kelmName":"Sofa","kelmName":"Chair"})"), QLatin1String("Sofa"));
    EXPECT_EQ(name(R"({"kelmName":"Zoë 席 \"\\\u0041"})"), QString::fromUtf8("Zoë 席 \"\\A"));
    EXPECT_EQ(name(R"({"kelmName":"a\u0000b"})"), QString::fromLatin1("a\0b", 3));
    for (const char* body : {R"({"other":1,"kelmName":"X"})", R"({"KelmName":"X"})", R"({"kelmName":5})",
                             R"({"kelmName":null})", "{}", "", "[]", "{\"kelmName\":\"X\"", "X"}) {
        EXPECT_EQ(name(body), QString()) << body;
    }
}

TEST(NameHandlerTest, TakesTheAcknowledgementOfANewNameForNoName) {
    GetKelmNameNotificationHandler handler;
    const auto reported = values(handler, "SetKelmName", R"({"kelmName":"X"})");
    ASSERT_EQ(reported.keys(), QStringList("SetKelmName"));
    EXPECT_EQ(reported.first().toString(), QString());
    EXPECT_TRUE(values(handler, "GetUpdate", R"({"kelmName":"X"})").isEmpty());
}

TEST(FirstIntegerHandlersTest, ReadAnIntegerThatStandsFirst) {
    GetMotionDelayNotificationHandler delay;
    GetRecognitionToleranceNotificationHandler tolerance;
    const auto read = [](ValueHandler& handler, const std::string& type, const QString& key,
                         const std::string& value) {
        const std::string body = "{\"" + key.toStdString() + "\":" + value + "}";
        const auto reported = values(handler, type, body);
        EXPECT_EQ(reported.keys(), QStringList(key)) << body;
        EXPECT_EQ(reported.value(key).type(), QVariant::Int) << body;
        return reported.value(key).toInt();
    };
    const std::pair<const char*, int> cases[] = {
        {"17", 17},        {"-3", -3},         {"2147483647", 2147483647},
        {"2147483648", 0}, {"-2147483649", 0}, {"1.0", 0},
        {"1e2", 0},        {"\"17\"", 0},      {"true", 0},
        {"{\"x\":1}", 0}};
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(read(delay, "GetMotionDelay", QStringLiteral("motionDelay"), text), expected) << text;
        EXPECT_EQ(read(tolerance, "GetRecognitionTolerance", QStringLiteral("recognitionTolerance"), text),
                  expected)
            << text;
    }
    EXPECT_EQ(values(delay, "GetMotionDelay", R"({"x":1,"motionDelay":5})").first(), 0);
    EXPECT_TRUE(values(delay, "GetRecognitionTolerance", R"({"motionDelay":5})").isEmpty());
}

class DetailedStatusTest : public testing::Test {
protected:
    std::shared_ptr<ModuleInfo> module(const std::string& object) {
        const auto info = read("{\"Amp\":" + object + "}");
        return info && !info->modules.empty() ? info->modules.front() : nullptr;
    }

    QSharedPointer<DetailedStatusInfo> read(const std::string& body) {
        return record(m_handler, &GetDetailedStatusNotificationHandler::detailedStatusInfoChanged,
                      "GetHapticSystemStatus", body);
    }

    GetDetailedStatusNotificationHandler m_handler;
};

TEST_F(DetailedStatusTest, ShowsScalarsAsText) {
    const std::pair<const char*, const char*> cases[] = {{"21.456", "21.46"},
                                                         {"1.5", "1.50"},
                                                         {"3", "3"},
                                                         {"-7", "-7"},
                                                         {"4294967296", "4294967296"},
                                                         {"18446744073709551615", "18446744073709551615"},
                                                         {"2.0", "2.00"},
                                                         {"\"as is\"", "as is"},
                                                         {"-0.001", "-0.00"}};
    for (const auto& [number, text] : cases) {
        const auto amp = module(std::string("{\"Temp\":") + number + "}");
        ASSERT_TRUE(amp) << number;
        ASSERT_EQ(amp->properties.size(), 1U) << number;
        EXPECT_EQ(amp->properties[0].first, QLatin1String("Temp"));
        EXPECT_EQ(amp->properties[0].second, QLatin1String(text));
    }
    EXPECT_TRUE(module(R"({"Ok":true,"None":null,"List":[1,{"x":1}]})")->properties.empty());
}

TEST_F(DetailedStatusTest, TellsFieldsFromSubModulesAndKeepsTheOrder) {
    const auto amp =
        module(R"({"B":"1","Field":{"Id":1,"Name":"Load","Value":"5","Unit":"W","Description":"d",
        "Type":"t","Category":2},"Left":{"Deep":{"T":1}},"A":"2","field":{},"Field":{"Id":"7","Name":8},
        "Field":3,"B":"3"})");
    ASSERT_TRUE(amp);
    EXPECT_EQ(amp->name, QLatin1String("Amp"));
    QStringList keys;
    for (const auto& property : amp->properties) {
        keys << property.first;
    }
    EXPECT_EQ(keys, QStringList({"B", "A", "Field", "B"}));
    ASSERT_EQ(amp->fields.size(), 2U);
    const StatusField expected{1, "Load", "5", "W", "d", "t", 2};
    EXPECT_TRUE(amp->fields[0] == expected);
    EXPECT_TRUE(amp->fields[1] == StatusField()) << "members of the wrong type";
    ASSERT_EQ(amp->subModules.size(), 2U);
    EXPECT_EQ(amp->subModules[0]->name, QLatin1String("Left"));
    EXPECT_EQ(amp->subModules[0]->subModules.at(0)->properties.at(0).second, QLatin1String("1"));
    EXPECT_EQ(amp->subModules[1]->name, QLatin1String("field"));
}

TEST_F(DetailedStatusTest, TakesObjectsForModulesAndAnEmptyBodyForNothing) {
    EXPECT_FALSE(read("{}"));
    const auto info = read(R"({"a":1,"X":{},"b":"t","Y":{},"X":{}})");
    ASSERT_TRUE(info);
    ASSERT_EQ(info->modules.size(), 3U);
    EXPECT_EQ(info->modules[1]->name, QLatin1String("Y"));
    ASSERT_TRUE(read(R"({"a":1})"));
    EXPECT_TRUE(read(R"({"a":1})")->modules.empty());
}

TEST_F(DetailedStatusTest, RefusesWhatNestsTooDeep) {
    EXPECT_TRUE(read(nested(60)));
    EXPECT_FALSE(read(nested(65)));
    EXPECT_FALSE(read(nested(100000)));
}

class SeatStatusTest : public testing::Test {
protected:
    SeatStatusList read(const std::string& body) {
        const auto reported = values(m_handler, "GetSeatStatus", body);
        EXPECT_TRUE(reported.contains(QStringLiteral("GetSeatStatus")));
        EXPECT_FALSE(reported.first().isValid()) << "the list stays with the handler";
        return m_handler.seats();
    }

    SeatInfo seat(const std::string& members) {
        const auto seats = read("{\"seat\":[{" + members + "}]}");
        EXPECT_EQ(seats.size(), 1U);
        return seats.empty() ? SeatInfo() : *seats.front();
    }

    GetSeatStatusNotificationHandler m_handler;
};

TEST_F(SeatStatusTest, ReadsASeat) {
    const SeatInfo read = seat(R"("index":3,"muted":true,"chained":true,"motion":5,"vibration":7.5,
        "overallState":{"value":"30","description":"No power"})");
    EXPECT_TRUE((read == SeatInfo{3, true, true, true, 5, 8, "30", "No power"}));
    EXPECT_TRUE(seat(R"("index":"3","muted":1,"chained":"true","motion":"5","vibration":null,
        "overallState":{"value":30,"description":5},"overallState":"x")") == SeatInfo());
    EXPECT_TRUE(seat(R"("overallState":{"value":"10","value":"20"})").statusType() == 2) << "the last wins";
}

TEST_F(SeatStatusTest, RoundsHalvesUpward) {
    const std::pair<const char*, double> cases[] = {{"2.4", 2},   {"2.5", 3}, {"-2.4", -2}, {"-2.5", -2},
                                                    {"-2.6", -3}, {"0", 0},   {"-0.5", 0},  {"1e3", 1000}};
    for (const auto& [text, rounded] : cases) {
        const SeatInfo read = seat(std::string("\"motion\":") + text + ",\"vibration\":" + text);
        EXPECT_EQ(read.motion, rounded) << text;
        EXPECT_EQ(read.vibration, rounded) << text;
    }
}

TEST_F(SeatStatusTest, SortsByIndexAndKeepsTheOrderOfEquals) {
    const auto seats = read(R"({"seat":[{"index":2},{"index":1},5,{"index":2,"muted":true}],"Seat":[{}],
        "seat":[],"seat":[{"index":-1}],"seat":{"index":9}})");
    ASSERT_EQ(seats.size(), 4U);
    EXPECT_EQ(seats[0]->index, -1);
    EXPECT_EQ(seats[1]->index, 1);
    EXPECT_FALSE(seats[2]->muted);
    EXPECT_TRUE(seats[3]->muted);
    EXPECT_TRUE(read("").empty()) << "an empty body empties the list";
}

TEST(SoftwareHealthTest, ReadsTheProgramsAndTakesTheLaterOfTwoNames) {
    GetSoftwareHealthStatusHandler handler;
    const auto read = [&](const std::string& body) {
        return record(handler, &GetSoftwareHealthStatusHandler::softwareHealthStatusChanged,
                      "GetSoftwareHealthStatus", body);
    };
    EXPECT_FALSE(read("{}"));
    const auto status = read(R"({"overallState":2,"currentUserName":"kim","softwareHealthStatus":[
        {"softwareName":"A","name":"B","status":1,"statusMessage":"m","timestamp":"t","userName":"u"},
        7,{"name":"B","softwareName":"A","status":"1"}]})");
    ASSERT_TRUE(status);
    EXPECT_EQ(status->overallState, 2);
    EXPECT_EQ(status->currentUserName, QLatin1String("kim"));
    ASSERT_EQ(status->entries.size(), 2);
    EXPECT_TRUE((status->entries[0] == SoftwareHealthEntry{"B", 1, "m", "t", "u"}));
    EXPECT_EQ(status->entries[1].name, QLatin1String("A"));
    EXPECT_EQ(status->entries[1].status, 0);
    EXPECT_TRUE(*read(R"({"overallState":"2","softwareHealthStatus":{}})") == SoftwareHealthStatus());
}

TEST(UpgradeAndUpdateTest, HaveCodesOfTheirOwn) {
    GetUpgradeAndUpdateNotificationHandler handler;
    using Handler = GetUpgradeAndUpdateNotificationHandler;
    struct Case {
        const char* text;
        int update;
        int upgrade;
    };
    for (const Case& c : {Case{"scheduled", -1, 0}, Case{"in_progress", 0, 1}, Case{"cancelled", 1, 2},
                          Case{"failed", 2, 3}, Case{"success", 3, 4}, Case{"Success", -1, -1}}) {
        const std::string body = std::string(R"({"last":{"version":"1","status":")") + c.text + "\"}}";
        EXPECT_EQ(signalledValue(handler, &Handler::updateStatusChanged, "GetUpdate", body), c.update)
            << c.text;
        EXPECT_EQ(signalledValue(handler, &Handler::upgradeStatusChanged, "GetUpgrade", body), c.upgrade)
            << c.text;
    }
    EXPECT_EQ(signalledValue(handler, &Handler::updateStatusChanged, "GetUpdate", "{}"), -1);
    EXPECT_EQ(signalledValue(handler, &Handler::upgradeStatusChanged, "GetUpgrade", R"({"last":5})"), -1);
}

TEST(UpgradeAndUpdateTest, ReadVersionAndTime) {
    GetUpgradeAndUpdateNotificationHandler handler;
    using Handler = GetUpgradeAndUpdateNotificationHandler;
    const std::string body = R"({"current":{"version":"4.2","updatedTimestamp":"2025-11-03T08:15:00Z"},
        "last":{"version":"4.1","updatedTimestamp":"2020-01-01T00:00:00Z"}})";
    EXPECT_EQ(signalledValue(handler, &Handler::softwareVersionReceived, "GetUpgrade", body),
              QLatin1String("4.2"));
    const auto time = [&](const std::string& text) {
        return signalledValue(handler, &Handler::lastUpdateTimestampReceived, "GetUpdate", text).toDateTime();
    };
    EXPECT_EQ(time(body), QDateTime(QDate(2025, 11, 3), QTime(8, 15), Qt::UTC));
    EXPECT_FALSE(time("{}").isValid());
    EXPECT_FALSE(time(R"({"current":{"updatedTimestamp":"yesterday"}})").isValid());
}

class NetworkStateTest : public testing::Test {
protected:
    QSharedPointer<NetworkStatus> read(const std::string& body) {
        return record(m_handler, &GetKELMNetworkStateHandler::networkStatusChanged, "GetNetworkState", body);
    }

    GetKELMNetworkStateHandler m_handler;
};

TEST_F(NetworkStateTest, JudgesInterfacesByTheFlagsThatStandBeforeThem) {
    const auto joined = read(R"({"online":true,"wifi_online":true,
        "addresses":[{"interface_name":"Ethernet"},5,{"interface_name":"Wi-Fi"}]})");
    ASSERT_TRUE(joined);
    EXPECT_TRUE(joined->valid && joined->online && joined->wifiOnline && !joined->hotspotActive);
    ASSERT_EQ(joined->interfaces.size(), 2);
    EXPECT_FALSE(joined->interfaces[0].active);
    EXPECT_TRUE(joined->interfaces[1].active);

    const auto late = read(R"({"addresses":[{"interface_name":"Access Point"}],"hotspot_active":true,
        "addresses":[{"interface_name":"Access Point"}]})");
    ASSERT_TRUE(late);
    ASSERT_EQ(late->interfaces.size(), 2) << "each of two lists adds its elements";
    EXPECT_FALSE(late->interfaces[0].active);
    EXPECT_TRUE(late->interfaces[1].active);
}

TEST_F(NetworkStateTest, IgnoresWhatIsOfTheWrongType) {
    const auto odd =
        read(R"({"online":1,"wifi_online":"true","hotspot_active":null,"ssid":5,"addresses":{}})");
    ASSERT_TRUE(odd);
    NetworkStatus empty;
    empty.valid = true;
    EXPECT_TRUE(*odd == empty);
    const auto partly = read(R"({"ssid":"A","ssid":"B","addresses":[{"ip":"10.0.0.1","netmask":"255.0.0.0",
        "broadcast":"10.255.255.255","hardware_address":"02","interface_name":7}]})");
    ASSERT_TRUE(partly);
    EXPECT_EQ(partly->ssid, QLatin1String("B"));
    EXPECT_TRUE((partly->interfaces.at(0) ==
                 NetworkInterfaceInfo{-1, "", "10.0.0.1", "02", "255.0.0.0", "10.255.255.255", false}));
    EXPECT_FALSE(read("{}"));
}

TEST(WifiListTest, ListsEveryNetworkAndKeepsTheLastFlagOfEach) {
    GetWifiListHandler handler;
    const auto read = [&](auto signal, const std::string& body) {
        return signalledValue(handler, signal, "GetWifiList", body, 1);
    };
    const std::string body = R"({"any":[{"ssid":"A","active":false},{"ssid":"A","active":true}],"n":5,
        "other":[{"active":"yes"},7,{"ssid":"B"}]})";
    EXPECT_EQ(read(&GetWifiListHandler::wifiNetworkListChangedSignal, body).toStringList(),
              QStringList({"A", "A", "", "B"}));
    EXPECT_EQ(read(&GetWifiListHandler::wifiNetworkStatusListChangedSignal, body).toMap(),
              QVariantMap({{"A", true}, {"", false}, {"B", false}}));
    EXPECT_TRUE(read(&GetWifiListHandler::wifiNetworkStatusListChangedSignal, "").toMap().isEmpty());
}

TEST(WifiSettingTest, SucceedsOnlyByATrueResultOfTheFirstMember) {
    WifiSettingHandler handler;
    const auto result = [&](const std::string& body) {
        const auto value = signalledValue(handler, &WifiSettingHandler::wifiSettingResponseReceived,
                                          "SetWifiSetting", body, 1);
        EXPECT_EQ(value.type(), QVariant::Bool) << body;
        return value.toBool();
    };
    EXPECT_TRUE(result(R"({"setWifi":{"x":1,"result":"no","result":true,"result":false}})"));
    for (const char* body : {R"({"setWifi":{"result":"true"}})", R"({"setWifi":{"result":1}})",
                             R"({"x":1,"setWifi":{"result":true}})", R"({"setWifi":true})",
                             R"({"setWifi":{"result":false,"result":true}})", "{}", ""}) {
        EXPECT_FALSE(result(body)) << body;
    }
}

/// A frame full of empty elements would otherwise make a record for every few bytes.
TEST(LongListsTest, AreCutAndSaidToBeOnce) {
    const orvex::Test::ProgramLogCapture log;
    const auto many = [](const std::string& element, int count) {
        std::string list = element;
        for (int i = 1; i < count; ++i) {
            list += "," + element;
        }
        return list;
    };
    const std::string list = "[" + many("{}", 1000) + "]";
    const auto twice = [&](const std::string& name) {
        return "{\"" + name + "\":" + list + ",\"" + name + "\":" + list + "}";
    };
    GetSeatStatusNotificationHandler seats;
    values(seats, "GetSeatStatus", twice("seat"));
    EXPECT_EQ(seats.seats().size(), 1024U);
    EXPECT_EQ(log.count("more than 1024 seats"), 1U);

    GetSoftwareHealthStatusHandler health;
    const auto status = record(health, &GetSoftwareHealthStatusHandler::softwareHealthStatusChanged,
                               "GetSoftwareHealthStatus", twice("softwareHealthStatus"));
    EXPECT_EQ(status->entries.size(), 1024);

    GetWifiListHandler networks;
    const auto names = signalledValue(networks, &GetWifiListHandler::wifiNetworkListChangedSignal,
                                      "GetWifiList", twice("wifiList"), 1);
    EXPECT_EQ(names.toStringList().size(), 1024);

    GetDetailedStatusNotificationHandler detailed;
    const auto info =
        record(detailed, &GetDetailedStatusNotificationHandler::detailedStatusInfoChanged,
               "GetHapticSystemStatus", "{\"A\":{" + many("\"Field\":{}", 30000) + "},\"B\":{}}");
    ASSERT_EQ(info->modules.size(), 1U);
    EXPECT_EQ(info->modules.front()->fields.size(), 19999U) << "the module itself counts, too";

    const auto media = readMediaList("{\"mediaList\":{\"media\":[" + many("{}", 200005) + "]}}");
    ASSERT_TRUE(media);
    EXPECT_EQ(media->media.size(), 200000);
    EXPECT_EQ(log.count("the rest is dropped"), 5U);
}

} // namespace
} // namespace orvex
