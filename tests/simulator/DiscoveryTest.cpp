#include "Exchange.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"

#include <algorithm>
#include <map>
#include <set>

using namespace Simulator;
using namespace std::chrono_literals;

namespace {

std::string probe(const std::string& id, const std::string& service = "KELM") {
    return R"({"service":")" + service + R"(","version":1,"id":")" + id + "\"}";
}

class Discovery : public testing::Test {
protected:
    std::unique_ptr<SimulatedUnit> started(const std::string& address = "127.0.0.1",
                                           const std::string& name = {}) {
        UnitOptions options;
        options.address = address;
        options.name = name;
        auto unit = std::make_unique<SimulatedUnit>(m_host, options);
        unit->start();
        return unit;
    }

    const std::uint16_t m_port = freeUdpPort();
    SimulatorHost m_host{HostOptions{true, m_port}};
    Prober m_prober;
};

} // namespace

TEST_F(Discovery, UnitsAnswerFromTheirOwnAddresses) {
    ASSERT_EQ(m_host.discoveryProblem(), "");
    const auto first = started("127.0.0.1");
    const auto second = started("127.0.0.2");
    const auto third = started("127.0.0.3");
    m_prober.send(probe("a"), m_port);
    std::map<std::string, std::string> uids;
    for (const auto& reply : m_prober.collect(3)) {
        rapidjson::Document announcement;
        announcement.Parse(reply.text);
        ASSERT_FALSE(announcement.HasParseError());
        EXPECT_STREQ(announcement["service"].GetString(), "KELM");
        EXPECT_STREQ(announcement["productVendor"].GetString(), "Orvex");
        EXPECT_TRUE(announcement["encrypted"].GetBool());
        uids[reply.from] = announcement["uid"].GetString();
    }
    EXPECT_EQ(uids,
              (std::map<std::string, std::string>{
                  {"127.0.0.1", first->uid()}, {"127.0.0.2", second->uid()}, {"127.0.0.3", third->uid()}}));
}

TEST_F(Discovery, ProbeHeardTwiceIsAnsweredOnce) {
    const auto unit = started();
    m_prober.send(probe("a"), m_port);
    m_prober.send(probe("a"), m_port, Velto::Wire::multicastGroup);
    m_prober.send(probe("a"), m_port);
    EXPECT_EQ(m_prober.collect(2, 300ms).size(), 1U);
    EXPECT_TRUE(eventually([this] { return m_host.discoveryCounters().duplicates == 2; }))
        << "the group's datagram comes in too";
    Prober other;
    other.send(probe("a"), m_port);
    EXPECT_EQ(other.collect(1).size(), 1U) << "another sender with the same id";
    m_prober.send(probe("b"), m_port);
    EXPECT_EQ(m_prober.collect(1).size(), 1U);
    EXPECT_EQ(unit->counters().announcements, 3U);
}

TEST_F(Discovery, GoodProbeBehindBadOnesIsAnswered) {
    const auto unit = started();
    for (const std::string& bad : {std::string(), std::string("x"), probe("a", "OTHER"), probe(""),
                                   std::string(1500, ' ') + probe("b"), std::string("[[[[[[[[")})
        m_prober.send(bad, m_port);
    m_prober.send(probe("c"), m_port);
    EXPECT_EQ(m_prober.collect(1).size(), 1U);
    const auto counters = m_host.discoveryCounters();
    EXPECT_EQ(counters.probes, 2U);
    EXPECT_EQ(counters.dropped, 5U);
    EXPECT_EQ(counters.answers, 1U);
}

TEST_F(Discovery, RenamedUnitIsAnnouncedByItsNewName) {
    const auto unit = started("127.0.0.1", "Before");
    ForeignClient client;
    ASSERT_EQ(client.connect("127.0.0.1", unit->port()), "");
    EXPECT_EQ(ask(client, "SetKelmName", R"({"kelmName":"After"})").status(), 0);
    m_prober.send(probe("a"), m_port);
    const auto replies = m_prober.collect(1);
    ASSERT_EQ(replies.size(), 1U);
    EXPECT_NE(replies[0].text.find(R"("name":"After")"), std::string::npos) << replies[0].text;
}

TEST_F(Discovery, StoppedUnitIsSilent) {
    const auto stopped = started("127.0.0.2");
    const auto running = started("127.0.0.1");
    stopped->stop();
    m_prober.send(probe("a"), m_port);
    const auto replies = m_prober.collect(2, 300ms);
    ASSERT_EQ(replies.size(), 1U);
    EXPECT_EQ(replies[0].from, "127.0.0.1");
    stopped->start();
    m_prober.send(probe("b"), m_port);
    EXPECT_EQ(m_prober.collect(2).size(), 2U);
}

TEST_F(Discovery, FiveHundredUnitsShareAProcess) {
    std::vector<std::unique_ptr<SimulatedUnit>> units;
    for (int i = 0; i < 500; ++i)
        units.push_back(started("127.0." + std::to_string(1 + i / 250) + '.' + std::to_string(1 + i % 250)));
    m_prober.send(probe("all"), m_port);
    std::set<std::string> addresses;
    for (const auto& reply : m_prober.collect(500))
        addresses.insert(reply.from);
    EXPECT_EQ(addresses.size(), 500U);
    ForeignClient client;
    EXPECT_EQ(client.connect("127.0.2.250", units.back()->port()), "");
    EXPECT_EQ(client.presentedUid(), units.back()->uid());
}

TEST(DiscoveryPort, TakenPortIsToldAndUnitsServeAllTheSame) {
    const PortHolder holder;
    SimulatorHost host({true, holder.port()});
    EXPECT_NE(host.discoveryProblem().find(std::to_string(holder.port())), std::string::npos);
    SimulatedUnit unit(host, {});
    unit.start();
    ForeignClient client;
    EXPECT_EQ(client.connect("127.0.0.1", unit.port()), "");
}
