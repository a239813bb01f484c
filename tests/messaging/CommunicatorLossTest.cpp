#include "tests/messaging/CommunicatorFixture.h"

namespace orvex::Test {
namespace {

using namespace std::chrono_literals;

using CommunicatorLossTest = OneUnitFixture;

TEST_F(CommunicatorLossTest, ALossDuringARequestEndsItAndMarksTheUnitOffline) {
    connectToUnit();
    for (const AnswerFault fault : {AnswerFault::Close, AnswerFault::Reset, AnswerFault::OversizeHeader}) {
        unit.fail(fault, {"GetUpdate"});
        EXPECT_FALSE(request(device, listed));
        EXPECT_FALSE(device->isOnline());
        EXPECT_TRUE(device->changedFields().all());
        unit.setFaults({});
        EXPECT_TRUE(request(device, listed));
        EXPECT_TRUE(device->isOnline());
    }
    EXPECT_EQ(log.count("timeout"), 0U);
}

TEST_F(CommunicatorLossTest, ALossBetweenRequestsMarksTheUnitOfflineAndEndsNothing) {
    connectToUnit();
    unit.closeConnections();
    EXPECT_TRUE(eventually([&] { return !device->isOnline(); }));
    EXPECT_TRUE(request(device, listed));
    EXPECT_EQ(results(), QLatin1String("1"));
}

TEST_F(CommunicatorLossTest, AnUnreadableAnswerIsAsGoodAsNone) {
    connectToUnit();
    for (const AnswerFault fault : {AnswerFault::Garble, AnswerFault::StallMidFrame}) {
        unit.fail(fault, {"GetNetworkState"});
        EXPECT_FALSE(request(device, listed, 500));
        unit.setFaults({});
        EXPECT_TRUE(request(device, listed));
    }
    unit.fail(AnswerFault::TruncateBody, {"GetNetworkState"});
    EXPECT_TRUE(request(device, listed)) << "an answer that says nothing is an answer";
    EXPECT_FALSE(device->networkStatus());
}

TEST_F(CommunicatorLossTest, ChangingUnitsLeavesTheOldOneAsItWas) {
    EXPECT_TRUE(request(device, listed));
    const auto valid = device->validFields();
    const RunningUnit other(host, "Other");
    const auto otherDevice = other.device();
    unit.fail(AnswerFault::Drop);
    communicator->startRequest(device, mask({DeviceField::Name}), nullptr, 20000);
    communicator->startRequest(otherDevice, listed, nullptr, 20000);
    EXPECT_EQ(results(), QLatin1String("10"));
    EXPECT_TRUE(eventually([&] { return ended.size() == 3; }));
    EXPECT_EQ(results(), QLatin1String("101"));
    EXPECT_TRUE(device->isOnline());
    EXPECT_EQ(device->validFields(), valid);
    EXPECT_TRUE(eventually([&] { return unit.clients() == 0; }));
    EXPECT_TRUE(device->isOnline());
}

TEST_F(CommunicatorLossTest, WhatOneUnitHeardSaysNothingAboutAnother) {
    const auto audio = mask({DeviceField::AudioSourceStatus});
    const auto typeAfter = [&](RunningUnit& of, const std::shared_ptr<DeviceInfo>& info,
                               const std::string& state) {
        of.fail(AnswerFault::Drop, {"GetMediaStatus"});
        const int before = ended.size();
        communicator->startRequest(info, audio, nullptr, 20000);
        const std::string body = R"({"s":{"mediaIdState":")" + state + "\"}}";
        EXPECT_TRUE(eventually([&] { return of.clients() == 1; }));
        EXPECT_TRUE(eventually([&] {
            of.push("GetMediaStatus", body);
            return ended.size() > before;
        }));
        return info->audioSourceStatus().type;
    };
    EXPECT_EQ(typeAfter(unit, device, "ident_success"), 3);
    EXPECT_EQ(typeAfter(unit, device, "starting"), 3);
    RunningUnit other(host, "Other");
    EXPECT_EQ(typeAfter(other, other.device(), "starting"), 2);
}

TEST_F(CommunicatorLossTest, DisconnectingEndsTheRequestAndForgetsTheUnit) {
    connectToUnit();
    unit.fail(AnswerFault::Drop);
    communicator->startRequest(device, listed, nullptr, 20000);
    communicator->disconnect();
    EXPECT_EQ(results(), QLatin1String("0"));
    EXPECT_EQ(log.count("warning Communicator: disconnect() called during request, canceling request"), 1U);
    EXPECT_FALSE(device->isOnline());
    EXPECT_TRUE(eventually([&] { return unit.clients() == 0; }));
    unit.setFaults({});
    EXPECT_TRUE(request(device, listed));
    communicator->disconnect();
    EXPECT_TRUE(request(device, listed)) << "right behind a disconnection";
}

TEST_F(CommunicatorLossTest, DisconnectingWhileTheConnectionIsAwaitedDoesNoHarm) {
    unit.fail(AnswerFault::Drop); // on a busy machine all answers may be there before the next line
    communicator->startRequest(device, listed, nullptr, 1000);
    communicator->disconnect();
    EXPECT_TRUE(eventually([&] { return communicator->isIdle(); }));
    EXPECT_EQ(results(), QLatin1String("0"));
    unit.fail(AnswerFault::None);
    EXPECT_TRUE(request(device, listed));
}

TEST_F(CommunicatorLossTest, AnUnknownKeyIsLoggedAndChangesNothing) {
    communicator->genericResponseHandler(QStringLiteral("nonsense"), 1);
    EXPECT_EQ(log.count("Communicator::genericResponseHandler unexpected notification"), 1U);
}

TEST_F(CommunicatorLossTest, LetsGoOfTheMessengerWhileItIsTalkedTo) {
    unit.fail(AnswerFault::Drop);
    std::atomic<bool> talking{true};
    std::thread talker([&] {
        while (talking) {
            unit.push("GetKelmName", R"({"kelmName":"Chatter"})");
            unit.push("GetNetworkState", R"({"online":true})");
        }
    });
    for (int round = 0; round < 10; ++round) {
        auto line = makeMessenger();
        auto released = std::make_shared<Communicator>();
        QSignalSpy releasedEnded(released.get(), &Communicator::requestComplete);
        released->setMessenger(line);
        line->connect(3000);
        released->startRequest(device, listed, nullptr, 500);
        EXPECT_TRUE(eventually([&] { return device->answeredFields().test(DeviceField::Network); }));
        line.reset();
        released->releaseMessenger();
        released->startRequest(device, listed);
        released->disconnect();
        if (round == 0) {
            EXPECT_TRUE(eventually([&] { return released->isIdle(); })) << "its time-out still ends it";
            EXPECT_LE(releasedEnded.size(), 1);
        }
    }
    talking = false;
    talker.join();
}

TEST_F(CommunicatorLossTest, TwoUnitsInTurnNeverMixWhateverGoesWrong) {
    UnitOptions accessPoint;
    accessPoint.accessPoint = true;
    accessPoint.media = 3;
    RunningUnit other(host, "Other", accessPoint);
    struct Side {
        RunningUnit& unit;
        std::shared_ptr<DeviceInfo> device;
        QString name;
        bool accessPoint;
        int media;
    };
    Side sides[] = {{unit, device, "Sofa", false, 24}, {other, other.device(), "Other", true, 3}};
    const AnswerFault faults[] = {AnswerFault::None,  AnswerFault::Close, AnswerFault::None,
                                  AnswerFault::Reset, AnswerFault::None,  AnswerFault::None,
                                  AnswerFault::None};
    const auto fields = listed | mask({DeviceField::MediaList});
    int expected = 0;
    int succeeded = 0;
    for (int round = 0; round < 200; ++round) {
        Side& side = sides[round % 2];
        Faults wrong;
        wrong.answer = round % 50 == 49 ? AnswerFault::Drop : faults[round % 7];
        wrong.types = {"GetUpdate"};
        wrong.delay = std::chrono::milliseconds(round % 3);
        side.unit.setFaults(wrong);
        communicator->startRequest(side.device, fields, nullptr,
                                   wrong.answer == AnswerFault::Drop ? 500 : 20000);
        ++expected;
        if (round % 5 == 4) {
            // Anywhere on the way: what has not come yet comes too late.
            const auto seen = side.unit.counters().requestsOf("GetKelmName");
            eventually([&] {
                return ended.size() == expected || side.unit.counters().requestsOf("GetKelmName") > seen;
            });
            communicator->cancelRequest();
        }
        ASSERT_TRUE(eventually([&] { return ended.size() >= expected; })) << round;
        ASSERT_EQ(ended.size(), expected) << round;
        ASSERT_TRUE(communicator->isIdle()) << round;
        succeeded += ended.last().first().toBool() ? 1 : 0;
        for (const Side& each : sides) {
            EXPECT_EQ(each.device->name(), each.name) << round;
            if (const auto network = each.device->networkStatus()) {
                EXPECT_EQ(network->hotspotActive, each.accessPoint) << round;
            }
            if (const auto media = each.device->mediaList()) {
                EXPECT_EQ(media->media.size(), each.media) << round;
            }
        }
    }
    EXPECT_GT(succeeded, 80);
}

} // namespace
} // namespace orvex::Test
