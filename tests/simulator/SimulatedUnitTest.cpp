#include "simulator/SimulatedUnit.h"

#include "Exchange.h"
#include "simulator/SimulatorHost.h"
#include "velto/wire/Identity.h"

#include <set>
#include <stdexcept>
#include <vector>

using namespace Simulator;

namespace {

class Unit : public testing::Test {
protected:
    static UnitOptions withMedia(std::size_t count) {
        UnitOptions options;
        options.media = count;
        return options;
    }

    std::unique_ptr<SimulatedUnit> started(const UnitOptions& options = {}) {
        auto unit = std::make_unique<SimulatedUnit>(m_host, options);
        unit->start();
        return unit;
    }

    static void connect(ForeignClient& client, const SimulatedUnit& unit) {
        ASSERT_EQ(client.connect(unit.options().address, unit.port(), unit.options().encrypted), "");
    }

    static std::vector<int> statesOfUpdate(ForeignClient& client) {
        std::vector<int> states;
        while (states.empty() || states.back() % 10 == 0) {
            const Frame frame = receive(client);
            if (frame.word("kind") != "notification" || frame.word("type") != "GetContentUpdateState")
                return states;
            const int state = frame.body["stateId"].GetInt();
            const bool measured = frame.body["progressType"].GetInt() == 1;
            EXPECT_EQ(measured, state == 30 || state == 50) << state;
            EXPECT_EQ(std::string(frame.body["progressValue"].GetString()).empty(), !measured);
            if (states.empty() || states.back() != state)
                states.push_back(state);
            if (state == 10 || state == 36)
                break;
        }
        return states;
    }

    SimulatorHost m_host{HostOptions{false, 0}};
};

} // namespace

TEST_F(Unit, ShowsTheKeyItAnnounces) {
    const auto unit = started();
    ForeignClient client;
    connect(client, *unit);
    EXPECT_TRUE(Velto::Wire::isKeyUid(unit->uid()));
    EXPECT_EQ(client.presentedUid(), unit->uid());
}

TEST_F(Unit, PlainUnitTalksWithoutTlsUnderAUidNoKeyBelongsTo) {
    UnitOptions options;
    options.encrypted = false;
    const auto unit = started(options);
    ForeignClient client;
    connect(client, *unit);
    EXPECT_FALSE(Velto::Wire::isKeyUid(unit->uid()));
    EXPECT_EQ(ask(client, "GetKelmName").status(), 0);
}

TEST_F(Unit, ServesItsAnnouncementNextToTheWebSocket) {
    const auto unit = started();
    const auto page = [&unit](const std::string& target, const std::string& method = "GET") {
        ForeignClient client;
        EXPECT_EQ(client.connectTcp("127.0.0.1", unit->port()), "");
        EXPECT_EQ(client.greet(), "");
        return client.get(target, method);
    };
    const auto identity = page("/identity");
    EXPECT_EQ(identity.status, 200U);
    EXPECT_EQ(identity.type, "application/json");
    const auto announcement = Velto::Wire::decodeAnnouncement(identity.body);
    ASSERT_TRUE(announcement);
    EXPECT_EQ(announcement->uid, unit->uid());
    EXPECT_EQ(announcement->port, unit->port());
    EXPECT_EQ(page("/").status, 404U);
    EXPECT_EQ(page("/identity", "POST").status, 405U);
    EXPECT_EQ(unit->counters().identityRequests, 1U);
}

TEST_F(Unit, IsRenamedAndTellsTheOthers) {
    const auto unit = started();
    ForeignClient client;
    ForeignClient other;
    connect(client, *unit);
    connect(other, *unit);
    const Frame before = ask(client, "GetKelmName");
    EXPECT_EQ(before.bodyText, R"({"kelmName":"KELM K-0001"})");

    const Frame acknowledged = ask(client, "SetKelmName", R"({"kelmName":"Row \"7\" – Zoë"})");
    EXPECT_EQ(acknowledged.word("kind"), "response");
    EXPECT_EQ(acknowledged.word("type"), "SetKelmName");
    const Frame told = receive(other);
    EXPECT_EQ(told.word("kind"), "notification");
    EXPECT_STREQ(told.body["kelmName"].GetString(), "Row \"7\" – Zoë");
    EXPECT_STREQ(ask(client, "GetKelmName").body["kelmName"].GetString(), "Row \"7\" – Zoë");
    EXPECT_EQ(unit->announcement().name, "Row \"7\" – Zoë");

    unit->rename("From elsewhere");
    EXPECT_STREQ(receive(client).body["kelmName"].GetString(), "From elsewhere");
    EXPECT_THROW(unit->rename(""), std::invalid_argument);
}

TEST_F(Unit, RefusesNamesItCannotBear) {
    const auto unit = started();
    ForeignClient client;
    connect(client, *unit);
    const auto statusFor = [&client](const std::string& body) {
        return ask(client, "SetKelmName", body).status();
    };
    for (const char* const body : {"", "{}", R"({"kelmName":5})", R"({"name":"A"})"})
        EXPECT_EQ(statusFor(body), 2) << body;
    for (const std::string& name :
         {std::string(), std::string("  "), std::string("a\\u0007"), std::string(129, 'n')})
        EXPECT_EQ(statusFor(R"({"kelmName":")" + name + "\"}"), 3) << name;
    EXPECT_EQ(statusFor(R"({"kelmName":")" + std::string(128, 'n') + "\"}"), 0);
}

TEST_F(Unit, TellsOfItsNetworkWithTheFlagsBeforeTheAddresses) {
    UnitOptions alone;
    alone.accessPoint = true;
    for (const bool accessPoint : {false, true}) {
        const auto unit = started(accessPoint ? alone : UnitOptions{});
        ForeignClient client;
        connect(client, *unit);
        const Frame frame = ask(client, "GetNetworkState");
        std::vector<std::string> order;
        for (const auto& member : frame.body.GetObject())
            order.emplace_back(member.name.GetString());
        EXPECT_EQ(order,
                  (std::vector<std::string>{"online", "wifi_online", "hotspot_active", "ssid", "addresses"}));
        EXPECT_EQ(frame.body["hotspot_active"].GetBool(), accessPoint);
        EXPECT_EQ(frame.body["wifi_online"].GetBool(), !accessPoint);
        EXPECT_EQ(std::string(frame.body["ssid"].GetString()).empty(), accessPoint);
        const auto addresses = frame.body["addresses"].GetArray();
        ASSERT_EQ(addresses.Size(), 3U);
        EXPECT_STREQ(addresses[0]["interface_name"].GetString(), "Access Point");
        EXPECT_STREQ(addresses[1]["interface_name"].GetString(), "Ethernet");
        EXPECT_STREQ(addresses[2]["interface_name"].GetString(), "Wi-Fi");
        EXPECT_STREQ(addresses[accessPoint ? 0 : 2]["ip"].GetString(), "127.0.0.1");
    }
}

TEST_F(Unit, TellsOfItsSoftware) {
    const auto unit = started();
    unit->changeState([](UnitState& state) { state.software = {"5.0.0", "5.0.1", "scheduled"}; });
    ForeignClient client;
    connect(client, *unit);
    EXPECT_EQ(ask(client, "GetUpgrade").bodyText,
              R"({"last":{"version":"5.0.1","status":"scheduled"},"current":{"version":"5.0.0"}})");
    EXPECT_EQ(ask(client, "GetUpdate").bodyText,
              R"({"last":{"status":"success"},"current":{"updatedTimestamp":"2025-11-03T08:15:00Z"}})");
}

TEST_F(Unit, ContentUpdateRunsThroughItsStates) {
    const auto unit = started();
    ForeignClient client;
    ForeignClient watcher;
    connect(client, *unit);
    connect(watcher, *unit);
    const auto update = [&](ContentFailure failure) {
        unit->changeState([failure](UnitState& state) {
            state.content.pace = std::chrono::milliseconds(1);
            state.content.failure = failure;
        });
        EXPECT_EQ(client.send(request("RequestContentUpdate")), "");
        EXPECT_EQ(client.send(request("RequestContentUpdate")), ""); // a second one starts nothing
        return statesOfUpdate(watcher);
    };
    EXPECT_EQ(update(ContentFailure::Checking), (std::vector<int>{20, 25}));
    EXPECT_EQ(update(ContentFailure::ServerNotReady), (std::vector<int>{20, 36}));
    EXPECT_EQ(update(ContentFailure::Downloading), (std::vector<int>{20, 30, 35}));
    EXPECT_EQ(update(ContentFailure::Installing), (std::vector<int>{20, 30, 40, 50, 55}));
    EXPECT_EQ(unit->state().content.lastStatus, "failed");
    EXPECT_NE(unit->state().content.code, "0");
    EXPECT_EQ(update(ContentFailure::None), (std::vector<int>{20, 30, 40, 50, 10}));
    EXPECT_EQ(unit->state().content.lastStatus, "success");
    EXPECT_EQ(unit->state().content.code, "0");
    EXPECT_NE(unit->state().content.updatedTimestamp, "2025-11-03T08:15:00Z");
}

TEST_F(Unit, ListsAnyNumberOfTitlesAlwaysTheSame) {
    const auto unit = started(withMedia(3000));
    const auto none = started(withMedia(0));
    ForeignClient client;
    ForeignClient other;
    connect(client, *unit);
    connect(other, *none);
    const Frame frame = ask(client, "GetMediaListNotification");
    EXPECT_STREQ(frame.body.MemberBegin()->name.GetString(), "mediaList");
    const auto media = frame.body["mediaList"]["media"].GetArray();
    ASSERT_EQ(media.Size(), 3000U);
    std::set<std::string> titles;
    for (const auto& entry : media) {
        titles.insert(entry["title"].GetString());
        for (const char* const key :
             {"cut", "language", "releaseDate", "imdbRef", "duration", "trackReleaseDate"})
            EXPECT_GT(entry[key].GetStringLength(), 0U) << key;
    }
    EXPECT_EQ(titles.size(), 3000U);
    EXPECT_EQ(ask(client, "GetMediaListNotification").bodyText, frame.bodyText);
    EXPECT_EQ(ask(other, "GetMediaListNotification").bodyText, R"({"mediaList":{"media":[]}})");
    // What no frame can hold is refused, not cut.
    unit->changeState([](UnitState& state) { state.media.count = 200'000; });
    EXPECT_EQ(ask(client, "GetMediaListNotification").status(), 4);
}

TEST_F(Unit, AnswersBadRequestsAndStaysConnected) {
    const auto unit = started();
    ForeignClient client;
    connect(client, *unit);
    const Frame unknown = ask(client, "GetEverything");
    EXPECT_EQ(unknown.word("kind"), "error");
    EXPECT_EQ(unknown.word("type"), "GetEverything");
    EXPECT_EQ(unknown.status(), 1);
    EXPECT_FALSE(unknown.word("text").empty());

    for (const char* const body : {"x", "[]", "{\"a\":}", "{} {}"})
        EXPECT_EQ(ask(client, "GetKelmName", body).status(), 2) << body;
    for (const std::string frame : {"", "x", "\n", "{}\n", "{\"kind\":\"request\"}\n",
                                    "{\"kind\":\"response\",\"type\":\"GetKelmName\"}\n"}) {
        EXPECT_EQ(client.send(frame), "");
        const Frame answer = receive(client);
        EXPECT_EQ(answer.word("kind"), "error") << frame;
        EXPECT_EQ(answer.status(), 2) << frame;
    }
    EXPECT_EQ(client.send(request("GetKelmName", std::string(), 77)), "");
    const Frame good = receive(client);
    EXPECT_EQ(good.word("kind"), "response");
    EXPECT_EQ(good.header["number"].GetUint(), 77U) << "the number comes back";
    EXPECT_EQ(unit->counters().malformed, 6U);
}

TEST_F(Unit, ClosesOnWhatNoFrameMayBe) {
    const auto unit = started();
    const auto codeAfter = [&](const std::string& frame, bool text) {
        ForeignClient client;
        connect(client, *unit);
        client.send(frame, text); // the unit may close before all of it is out
        while (client.receive())
            continue;
        return client.closeCode();
    };
    EXPECT_EQ(codeAfter(request("GetKelmName"), false), 1003);
    EXPECT_EQ(codeAfter(std::string(5000, ' ') + request("GetKelmName"), true), 1009);
    EXPECT_EQ(codeAfter(request("GetKelmName", "{\"a\":\"\xff\"}"), true), 1007);
}

TEST_F(Unit, PushesToEveryClientAndCounts) {
    const auto unit = started();
    EXPECT_EQ(unit->push("GetSeatStatus", "{}"), 0U);
    ForeignClient one;
    ForeignClient two;
    connect(one, *unit);
    connect(two, *unit);
    EXPECT_EQ(unit->push("GetSeatStatus", R"({"seat":[]})"), 2U);
    for (ForeignClient* const client : {&one, &two}) {
        const Frame frame = receive(*client);
        EXPECT_EQ(frame.word("kind"), "notification");
        EXPECT_EQ(frame.word("type"), "GetSeatStatus");
        EXPECT_EQ(frame.bodyText, R"({"seat":[]})");
    }
    ask(one, "GetKelmName");
    EXPECT_EQ(one.ping(), "");
    const UnitCounters counters = unit->counters();
    EXPECT_EQ(counters.connections, 2U);
    EXPECT_EQ(counters.requestsOf("GetKelmName"), 1U);
    EXPECT_EQ(counters.bytesReceived, request("GetKelmName").size());
    EXPECT_GT(counters.bytesSent, 0U);
}

TEST_F(Unit, StoppedUnitIsGoneAndComesBackOnItsPort) {
    const auto unit = started();
    const auto port = unit->port();
    ForeignClient client;
    connect(client, *unit);
    unit->stop();
    EXPECT_FALSE(client.receive());
    EXPECT_TRUE(client.ended());
    EXPECT_EQ(client.closeCode(), 0) << "a unit without power says no good-bye";
    ForeignClient early;
    EXPECT_NE(early.connectTcp("127.0.0.1", port), "");
    unit->start();
    EXPECT_EQ(unit->port(), port);
    ForeignClient late;
    connect(late, *unit);

    unit->closeConnections();
    EXPECT_FALSE(late.receive());
    EXPECT_EQ(late.closeCode(), 1001);
    UnitOptions taken;
    taken.port = port;
    SimulatedUnit second(m_host, taken);
    EXPECT_THROW(second.start(), std::runtime_error);
}

TEST_F(Unit, OptionsThatCannotBeAreNamed) {
    const auto complaint = [this](void (*change)(UnitOptions&)) {
        UnitOptions options;
        change(options);
        try {
            const SimulatedUnit unit(m_host, options);
        } catch (const std::invalid_argument& error) {
            return std::string(error.what()).substr(0, std::string(error.what()).find(':'));
        }
        return std::string("taken");
    };
    EXPECT_EQ(complaint([](UnitOptions& o) { o.product = "sofa"; }), "product");
    EXPECT_EQ(complaint([](UnitOptions& o) { o.serial = "../x"; }), "serial");
    EXPECT_EQ(complaint([](UnitOptions& o) { o.name = std::string(200, 'x'); }), "name");
    EXPECT_EQ(complaint([](UnitOptions& o) { o.address = "localhost"; }), "address");
    EXPECT_EQ(complaint([](UnitOptions& o) { o.seats = 1000; }), "seats");
}
