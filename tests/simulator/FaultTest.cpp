#include "Exchange.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"

#include <map>

using namespace Simulator;
using namespace std::chrono_literals;

namespace {

constexpr auto silence = 150ms; ///< how long nothing must come where nothing may come

class FaultyUnit : public testing::Test {
protected:
    FaultyUnit() { m_unit.start(); }

    void connect(ForeignClient& client) { ASSERT_EQ(client.connect("127.0.0.1", m_unit.port()), ""); }

    void set(ConnectionFault fault) {
        Faults faults;
        faults.connection = fault;
        m_unit.setFaults(faults);
    }

    void set(AnswerFault fault, std::set<std::string> types = {}) {
        Faults faults;
        faults.answer = fault;
        faults.types = std::move(types);
        m_unit.setFaults(faults);
    }

    void expectHealthy() {
        m_unit.setFaults({});
        ForeignClient client;
        connect(client);
        EXPECT_EQ(ask(client, "GetKelmName").status(), 0);
    }

    SimulatorHost m_host{HostOptions{false, 0}};
    SimulatedUnit m_unit{m_host, {}};
};

} // namespace

TEST_F(FaultyUnit, RefusesNewConnectionsOnly) {
    ForeignClient before;
    connect(before);
    set(ConnectionFault::Refuse);
    ForeignClient client;
    EXPECT_NE(client.connectTcp("127.0.0.1", m_unit.port()), "");
    EXPECT_EQ(ask(before, "GetKelmName").status(), 0);
    expectHealthy();
}

TEST_F(FaultyUnit, HangsAtEachStageOfAConnection) {
    set(ConnectionFault::HangAfterAccept);
    ForeignClient silent;
    EXPECT_EQ(silent.connectTcp("127.0.0.1", m_unit.port()), "");
    EXPECT_EQ(silent.greet(silence), "timeout");

    set(ConnectionFault::HangInTls);
    ForeignClient greeted;
    EXPECT_EQ(greeted.connectTcp("127.0.0.1", m_unit.port()), "");
    EXPECT_EQ(greeted.greet(silence), "timeout");

    set(ConnectionFault::HangInUpgrade);
    ForeignClient encrypted;
    EXPECT_EQ(encrypted.connectTcp("127.0.0.1", m_unit.port()), "");
    EXPECT_EQ(encrypted.greet(), "");
    EXPECT_EQ(encrypted.upgrade(silence), "timeout");
    expectHealthy();
}

TEST_F(FaultyUnit, ShowsAnotherKeyThanItAnnounces) {
    Faults faults;
    faults.wrongKey = true;
    m_unit.setFaults(faults);
    ForeignClient client;
    connect(client);
    EXPECT_NE(client.presentedUid(), m_unit.uid());
    EXPECT_EQ(m_unit.announcement().uid, m_unit.uid());
    m_unit.setFaults({});
    ForeignClient again;
    connect(again);
    EXPECT_EQ(again.presentedUid(), m_unit.uid());
}

TEST_F(FaultyUnit, DropsTheAnswersOfSomeTypes) {
    ForeignClient client;
    connect(client);
    set(AnswerFault::Drop, {"GetKelmName"});
    EXPECT_EQ(client.send(request("GetKelmName")), "");
    EXPECT_EQ(ask(client, "GetUpgrade").word("type"), "GetUpgrade") << "what follows is answered";
    set(AnswerFault::Drop);
    EXPECT_EQ(client.send(request("GetUpgrade")), "");
    EXPECT_EQ(m_unit.push("GetSeatStatus", "{}"), 1U);
    EXPECT_EQ(receive(client).word("kind"), "notification");
    EXPECT_EQ(m_unit.counters().requestsOf("GetKelmName"), 1U) << "dropped, but heard";
}

TEST_F(FaultyUnit, DelaysAnswersAndNothingElse) {
    Faults faults;
    faults.delay = 300ms;
    faults.types = {"GetKelmName", "GetUpgrade"};
    m_unit.setFaults(faults);
    ForeignClient client;
    connect(client);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(client.send(request("GetKelmName")), "");
    EXPECT_EQ(client.send(request("GetUpgrade")), "");
    EXPECT_TRUE(eventually([this] { return m_unit.counters().requestsOf("GetUpgrade") == 1; }));
    m_unit.push("GetSeatStatus", "{}");
    EXPECT_EQ(receive(client).word("kind"), "notification") << "overtakes what is held back";
    EXPECT_EQ(ask(client, "GetUpdate").word("type"), "GetUpdate") << "so does an answer that is not meant";
    EXPECT_EQ(receive(client).word("type"), "GetKelmName");
    EXPECT_EQ(receive(client).word("type"), "GetUpgrade");
    EXPECT_GE(std::chrono::steady_clock::now() - start, 300ms);
}

TEST_F(FaultyUnit, SpoilsAnswers) {
    ForeignClient client;
    connect(client);
    const std::string whole = R"({"kelmName":"KELM K-0001"})";
    set(AnswerFault::Garble);
    const Frame garbled = ask(client, "GetKelmName");
    EXPECT_TRUE(garbled.header.HasParseError());
    set(AnswerFault::TruncateBody);
    const Frame truncated = ask(client, "GetKelmName");
    EXPECT_EQ(truncated.word("kind"), "response");
    EXPECT_EQ(truncated.bodyText, whole.substr(0, whole.size() / 2));
    set(AnswerFault::WrongTypes);
    EXPECT_EQ(ask(client, "GetKelmName").bodyText, R"({"kelmName":11})");
    EXPECT_EQ(ask(client, "GetExperienceModes").bodyText,
              R"({"selectedModeId":true,"state":2,"status":true,"statusMessage":2,)"
              R"("experienceModes":[{"id":true},{"id":true},{"id":true},{"id":true}]})");
    set(AnswerFault::OtherMessage);
    const Frame misnamed = ask(client, "GetKelmName");
    EXPECT_EQ(misnamed.word("type"), "GetUpdate");
    EXPECT_EQ(misnamed.bodyText, whole);
    set(AnswerFault::Duplicate);
    EXPECT_EQ(ask(client, "GetKelmName").bodyText, whole);
    EXPECT_EQ(receive(client).bodyText, whole);
    set(AnswerFault::Error);
    const Frame failed = ask(client, "GetKelmName");
    EXPECT_EQ(failed.word("kind"), "error");
    EXPECT_EQ(failed.status(), 4);
    EXPECT_EQ(failed.bodyText, "");
    set(AnswerFault::OversizeHeader);
    EXPECT_EQ(client.send(request("GetKelmName")), "");
    const std::string longHeader = client.receive().value_or("");
    EXPECT_GT(longHeader.find('\n'), 4096U);
    EXPECT_FALSE(Frame(longHeader).header.HasParseError());
    set(AnswerFault::OversizeFrame);
    EXPECT_EQ(client.send(request("GetKelmName")), "");
    EXPECT_EQ(client.receive().value_or("").size(), 16U * 1024 * 1024 + 1);
    m_unit.setFaults({});
    EXPECT_EQ(ask(client, "GetKelmName").bodyText, whole) << "the connection bears all that";
}

TEST_F(FaultyUnit, StallsInTheMiddleOfAFrameForGood) {
    ForeignClient client;
    connect(client);
    set(AnswerFault::StallMidFrame);
    EXPECT_EQ(client.send(request("GetKelmName")), "");
    const std::string raw = client.receiveRaw(1000, silence);
    ASSERT_GT(raw.size(), 2U);
    EXPECT_EQ(static_cast<unsigned char>(raw[0]), 0x81);
    EXPECT_LT(raw.size() - 2, static_cast<unsigned char>(raw[1])) << "less than the frame says";
    expectHealthy();
    EXPECT_EQ(client.receiveRaw(1, silence), "") << "not even when the fault is gone";
}

TEST_F(FaultyUnit, TricklesByteByByteAndGoesOn) {
    Faults faults;
    faults.trickle = 2ms;
    m_unit.setFaults(faults);
    ForeignClient client;
    connect(client);
    const auto start = std::chrono::steady_clock::now();
    const Frame frame = ask(client, "GetKelmName");
    EXPECT_EQ(frame.bodyText, R"({"kelmName":"KELM K-0001"})");
    EXPECT_GE(std::chrono::steady_clock::now() - start, 2ms * frame.bodyText.size());
    EXPECT_EQ(client.ping(), "");
    EXPECT_EQ(ask(client, "GetUpgrade").status(), 0);
}

TEST_F(FaultyUnit, EndsTheConnectionInsteadOfAnswering) {
    const std::map<AnswerFault, int> codes{{AnswerFault::Close, 1001}, {AnswerFault::Reset, 0}};
    for (const auto& [fault, code] : codes) {
        ForeignClient client;
        connect(client);
        set(fault);
        EXPECT_EQ(client.send(request("GetKelmName")), "");
        EXPECT_FALSE(client.receive());
        EXPECT_TRUE(client.ended());
        EXPECT_EQ(client.closeCode(), code);
        expectHealthy();
    }
    EXPECT_TRUE(eventually([this] { return m_unit.clients() == 0; }));
}
