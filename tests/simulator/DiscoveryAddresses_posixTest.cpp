// Not under Wine: there a datagram leaves from 127.0.0.1, whatever address its socket is bound to.
#include "DiscoveryFixture.h"

#include <map>

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
