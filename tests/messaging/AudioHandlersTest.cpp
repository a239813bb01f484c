#include "messaging/handlers/GetAdaptiveAudioParametersHandler.h"
#include "messaging/handlers/GetAdaptiveGamingSelectedProfileHandler.h"
#include "messaging/handlers/GetAutomaticVolumeControlHandler.h"
#include "messaging/handlers/GetCaptureDevicesHandler.h"
#include "messaging/handlers/GetCaptureVolumeHandler.h"
#include "messaging/handlers/GetContentUpdateStateHandler.h"
#include "messaging/handlers/GetDetailedStatusNotificationHandler.h"
#include "messaging/handlers/GetExperienceModesHandler.h"
#include "messaging/handlers/GetKELMNetworkStateHandler.h"
#include "messaging/handlers/GetMediaListNotificationHandler.h"
#include "messaging/handlers/GetMediaStatusNotificationHandler.h"
#include "messaging/handlers/GetSoftwareHealthStatusHandler.h"
#include "messaging/handlers/GetWifiListHandler.h"
#include "messaging/handlers/WifiSettingHandler.h"
#include "tests/messaging/HandlerResults.h"

#include <gtest/gtest.h>

namespace orvex {
namespace {

using namespace Velto::Messaging;
using Test::record;
using Test::response;
using Test::signalledValue;

TEST(CaptureDevicesTest, SortsByDisplayNameAndKeepsTheOrderOfEquals) {
    GetCaptureDevicesHandler handler;
    const auto read = [&](const std::string& body) {
        const auto value = signalledValue(handler, &GetCaptureDevicesHandler::captureDevicesResponseReceived,
                                          "GetCaptureDevices", body, 1);
        EXPECT_FALSE(value.isValid()) << "the list stays with the handler";
        return handler.devices();
    };
    const auto devices = read(R"({"captureDevices":[
        {"friendlyName":"B","loopback":"Loopback","identification":"1"},
        {"friendlyName":"A","loopback":"Regular","description":"d","identification":"2","interface":"i",
         "status":"OnCapture","connected":"yes"},
        "x",
        {"friendlyName":"B","loopback":"Loopback","identification":"3","status":7},
        {"friendlyName":"a","loopback":"none"}]})");
    ASSERT_EQ(devices.size(), 4U);
    EXPECT_TRUE((*devices[0] == CaptureDevice{"IN: A", "d", "2", "i", "Regular", "OnCapture", "yes"}));
    EXPECT_EQ(devices[1]->identification, QLatin1String("1"));
    EXPECT_EQ(devices[2]->identification, QLatin1String("3"));
    EXPECT_EQ(devices[3]->friendlyName, QLatin1String("a"));
    EXPECT_TRUE(read(R"({"x":1,"captureDevices":[{"friendlyName":"A"}]})").empty()) << "not the first member";
    read(R"({"captureDevices":[{}]})");
    EXPECT_TRUE(read("").empty()) << "an empty body empties the list";
    EXPECT_TRUE(read(R"({"captureDevices":{"a":{}}})").empty());
}

TEST(CaptureVolumeTest, FallsBackToTheDefaults) {
    GetCaptureVolumeHandler handler;
    const auto read = [&](const std::string& body) {
        signalledValue(handler, &GetCaptureVolumeHandler::captureVolumeResponseReceived, "GetCaptureVolume",
                       body);
        return handler.volume();
    };
    EXPECT_TRUE((read(R"({"volume":-3,"max":6,"experienceModeId":4,"min":-60,"step":2})") ==
                 CaptureVolumeState{4, -3, 2, -60, 6}));
    EXPECT_TRUE(
        (read(R"({"volume":1,"volume":2,"step":"5","max":1.5})") == CaptureVolumeState{0, 2, 1, -20, 20}));
    EXPECT_TRUE((read("{}") == CaptureVolumeState{0, 0, 1, -20, 20}));
}

TEST(AudioSwitchesTest, ReadTheirMemberWhereverItStands) {
    GetAdaptiveAudioParametersHandler adaptive;
    GetAutomaticVolumeControlHandler automatic;
    const auto preMix = [&](const std::string& body) {
        return signalledValue(adaptive,
                              &GetAdaptiveAudioParametersHandler::adaptiveAudioParametersResponseReceived,
                              "GetAdaptiveAudioParameters", body, 1);
    };
    const auto enabled = [&](const std::string& body) {
        return signalledValue(automatic,
                              &GetAutomaticVolumeControlHandler::automaticVolumeControlResponseReceived,
                              "GetAutomaticVolumeControl", body, 1);
    };
    EXPECT_EQ(preMix(R"({"x":1,"preMixType":7})"), QVariant(7));
    EXPECT_EQ(preMix(R"({"preMixType":1,"preMixType":true})"), QVariant(1));
    EXPECT_EQ(preMix("{}"), QVariant(0));
    EXPECT_EQ(enabled(R"({"x":1,"enabled":true})"), QVariant(true));
    EXPECT_EQ(enabled(R"({"enabled":1})"), QVariant(false));
    EXPECT_EQ(enabled(""), QVariant(false));
}

TEST(ExperienceModesTest, SortsTheIdsAndFallsBackToTheDefaults) {
    GetExperienceModesHandler handler;
    const auto read = [&](const std::string& body) {
        signalledValue(handler, &GetExperienceModesHandler::experienceModesResponseReceived,
                       "GetExperienceModes", body);
        return handler.modes();
    };
    EXPECT_TRUE((read(R"({"experienceModes":[{"id":3},{"id":1},{"x":1},{"id":"9"},4,{"id":5,"id":2}],
        "selectedModeId":2,"state":"Transitioning","status":7,"statusMessage":"Busy"})") ==
                 ExperienceModesState{{1, 2, 3}, 2, "Transitioning", 7, "Busy"}));
    EXPECT_TRUE((read(R"({"experienceModes":[{"id":1}],"experienceModes":[{"id":1}],"status":"1"})") ==
                 ExperienceModesState{{1, 1}, 0, "On", 0, "Ok"}));
    EXPECT_TRUE(read("{}") == ExperienceModesState());
}

TEST(AdaptiveGamingTest, ReadsTheProfileOfTheFirstMember) {
    GetAdaptiveGamingSelectedProfileHandler handler;
    const auto read = [&](const std::string& body) {
        return record(handler,
                      &GetAdaptiveGamingSelectedProfileHandler::adaptiveGamingSelectedProfileReceivedSignal,
                      "GetAdaptiveGamingSelectedProfile", body);
    };
    const auto profile = read(R"({"selectedProfile":{"id":"p","name":"Race","type":2,"version":3}})");
    ASSERT_TRUE(profile);
    EXPECT_TRUE((*profile == AdaptiveGamingSelectedProfile{"p", "Race", 2, 3}));
    for (const char* body : {R"({"x":1,"selectedProfile":{"id":"p"}})", R"({"selectedProfile":[]})",
                             R"({"selectedProfile":{"id":1,"name":2,"type":"3","version":4.5}})"}) {
        const auto fallback = read(body);
        ASSERT_TRUE(fallback) << body;
        EXPECT_TRUE(*fallback == AdaptiveGamingSelectedProfile()) << body;
    }
    EXPECT_FALSE(read("{}"));
}

TEST(ContentUpdateStateHandlerTest, ReadsTheState) {
    GetContentUpdateStateHandler handler;
    const auto read = [&](const std::string& body) {
        return record(handler, &GetContentUpdateStateHandler::contentUpdateStateChanged,
                      "GetContentUpdateState", body);
    };
    const auto state = read(R"({"stateId":30,"stateName":"d","code":"1","message":"m","progressType":1,
        "progressValue":"40","updatedTimestamp":"t"})");
    ASSERT_TRUE(state);
    EXPECT_TRUE((*state == ContentUpdateState{30, "d", "1", "m", 1, "40", "t"}));
    const auto odd = read(R"({"stateId":"20","code":5,"progressValue":40})");
    ASSERT_TRUE(odd);
    EXPECT_TRUE(*odd == ContentUpdateState());
    EXPECT_FALSE(read("{}"));
}

TEST(MediaListHandlerTest, ReadsTheListOfTheFirstMember) {
    GetMediaListNotificationHandler handler;
    const auto read = [&](const std::string& body) {
        return record(handler, &GetMediaListNotificationHandler::mediaListChanged, "GetMediaListNotification",
                      body);
    };
    const auto list =
        read(R"({"mediaList":{"media":[{"title":"Zulu","cut":"c","language":"l","releaseDate":"r",
        "imdbRef":"i","duration":"d","trackReleaseDate":"t"},5,{"title":"Alpha","duration":90}]}})");
    ASSERT_TRUE(list);
    ASSERT_EQ(list->media.size(), 2);
    EXPECT_TRUE((list->media[0] == MediaEntry{"Zulu", "c", "l", "r", "i", "d", "t"}));
    EXPECT_TRUE((list->media[1] == MediaEntry{"Alpha", "", "", "", "", "", ""}));
    EXPECT_FALSE(read(R"({"count":1,"mediaList":{"media":[]}})"));
    EXPECT_FALSE(read(R"({"mediaList":[]})"));
    EXPECT_FALSE(read(""));
    const auto none = read(R"({"mediaList":{"media":{}}})");
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->media.isEmpty());
}

TEST(MediaListHandlerTest, TakesTitlesFromTheirOwnPlaceAndNothingFromABrokenBody) {
    GetMediaListNotificationHandler handler;
    const auto titles = [&](const std::string& body) {
        const auto list = record(handler, &GetMediaListNotificationHandler::mediaListChanged,
                                 "GetMediaListNotification", body);
        QStringList read;
        for (const MediaEntry& entry : list ? list->media : QVector<MediaEntry>()) {
            read << entry.title + '/' + entry.cut;
        }
        return list ? read.join(' ') : QStringLiteral("none");
    };
    EXPECT_EQ(
        titles(R"({"mediaList":{"x":[{"title":"no"}],"media":[{"cut":"c","title":"a","title":"b","title":7,
        "more":{"title":"no","media":[{"title":"no"}]},"list":["no",{"title":"no"}]},[{"title":"no"}],"no",
        {"title":"\u00e9\ud83d\ude00","cut":"c"}],"media":[{"title":"second"}]},"media":[{"title":"no"}]})"),
        QStringLiteral("b/c \u00e9\U0001F600/c second/"));
    const std::string good = R"({"mediaList":{"media":[{"title":"a"}]}})";
    EXPECT_EQ(titles(good), "a/");
    for (const std::string& broken : {good + "x", good + good, good.substr(0, good.size() - 1),
                                      "[" + good + "]", good + std::string(1, '\0'), std::string("null"),
                                      std::string(R"({"mediaList":{"media":[{"title":"a)"
                                                  "\xff"
                                                  R"("}]}})"),
                                      R"({"mediaList":{"media":[)" + std::string(10000, '[')}) {
        EXPECT_EQ(titles(broken), "none") << broken.substr(0, 60);
    }
    const std::string deep = std::string(61, '[') + std::string(61, ']');
    EXPECT_EQ(titles(R"({"mediaList":{"media":[)" + deep + "]}}"), "") << "64 levels";
    EXPECT_EQ(titles(R"({"mediaList":{"media":[[)" + deep + "]]}}"), "none");
}

/// A handler, and its signals' count for a message of another type.
template <class Handler, class Signal>
int signalsForAnotherType(Signal signal) {
    Handler handler;
    QSignalSpy spy(&handler, signal);
    handler.handleResponse(response("AnotherType", R"({"x":{"y":1}})"));
    return spy.size();
}

TEST(HandlersTest, IgnoreMessagesOfAnotherType) {
    EXPECT_EQ(signalsForAnotherType<GetCaptureDevicesHandler>(
                  &GetCaptureDevicesHandler::captureDevicesResponseReceived),
              0);
    EXPECT_EQ(signalsForAnotherType<GetCaptureVolumeHandler>(
                  &GetCaptureVolumeHandler::captureVolumeResponseReceived),
              0);
    EXPECT_EQ(signalsForAnotherType<GetExperienceModesHandler>(
                  &GetExperienceModesHandler::experienceModesResponseReceived),
              0);
    EXPECT_EQ(signalsForAnotherType<GetAdaptiveGamingSelectedProfileHandler>(
                  &GetAdaptiveGamingSelectedProfileHandler::adaptiveGamingSelectedProfileReceivedSignal),
              0);
    EXPECT_EQ(signalsForAnotherType<GetContentUpdateStateHandler>(
                  &GetContentUpdateStateHandler::contentUpdateStateChanged),
              0);
    EXPECT_EQ(signalsForAnotherType<GetMediaListNotificationHandler>(
                  &GetMediaListNotificationHandler::mediaListChanged),
              0);
    EXPECT_EQ(signalsForAnotherType<GetDetailedStatusNotificationHandler>(
                  &GetDetailedStatusNotificationHandler::detailedStatusInfoChanged),
              0);
    EXPECT_EQ(signalsForAnotherType<GetSoftwareHealthStatusHandler>(
                  &GetSoftwareHealthStatusHandler::softwareHealthStatusChanged),
              0);
    EXPECT_EQ(signalsForAnotherType<GetMediaStatusNotificationHandler>(
                  &GetMediaStatusNotificationHandler::updateMediaInfoProgressBarSignal),
              0);
    EXPECT_EQ(
        signalsForAnotherType<GetKELMNetworkStateHandler>(&GetKELMNetworkStateHandler::networkStatusChanged),
        0);
    EXPECT_EQ(
        signalsForAnotherType<GetWifiListHandler>(&GetWifiListHandler::wifiNetworkStatusListChangedSignal),
        0);
    EXPECT_EQ(signalsForAnotherType<WifiSettingHandler>(&WifiSettingHandler::wifiSettingResponseReceived), 0);
}

TEST(HandlersTest, TakeAnUnreadableBodyForAnEmptyOne) {
    GetExperienceModesHandler handler;
    const auto ids = [&](const std::string& body) {
        handler.handleResponse(response("GetExperienceModes", body));
        return handler.modes().modeIds;
    };
    const std::string good = R"({"experienceModes":[{"id":1}],"state":"x"})";
    EXPECT_EQ(ids(good), QList<int>({1}));
    EXPECT_TRUE(ids(good + "\"").isEmpty()) << "rubbish behind the object";
    EXPECT_TRUE(ids(good + std::string("\0", 1) + "x").isEmpty()) << "something behind a zero byte";
    EXPECT_TRUE(ids(good.substr(0, good.size() - 2)).isEmpty());
    EXPECT_TRUE(ids("{\"experienceModes\":[{\"id\":1}],\"state\":\"\xC3\x28\"}").isEmpty()) << "not UTF-8";
    EXPECT_TRUE(ids("{\"experienceModes\":[{\"id\":1e999}]}").isEmpty());
    EXPECT_TRUE(ids("[" + good + "]").isEmpty());
}

} // namespace
} // namespace orvex
