#include "DiscoveryFixture.h"

#include <set>

using namespace Simulator;
using namespace std::chrono_literals;

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
    std::set<std::string> announcements;
    for (const auto& reply : m_prober.collect(500))
        announcements.insert(reply.text);
    EXPECT_EQ(announcements.size(), 500U) << "each unit its own";
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
