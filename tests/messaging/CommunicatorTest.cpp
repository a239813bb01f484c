#include "tests/messaging/CommunicatorFixture.h"

#include <QTimerEvent>

namespace orvex::Test {
namespace {

using namespace std::chrono_literals;

/// The machine's time, and a look at what goes on when a request sets its time-out: it has left the unit
/// before it by then, and is not taken up itself yet.
class WatchedTime : public TimeSource {
public:
    TimePoint now() const override { return system().now(); }
    int startTimer(QObject& owner, int milliseconds, Qt::TimerType type) override {
        if (look) {
            look();
        }
        return system().startTimer(owner, milliseconds, type);
    }
    void stopTimer(QObject& owner, int id) override { system().stopTimer(owner, id); }

    std::function<void()> look;
};

struct WithWatchedTime {
    WatchedTime time;
};

class CommunicatorTest : protected WithWatchedTime, public OneUnitFixture {
protected:
    CommunicatorTest()
        : OneUnitFixture(time) {}
};

TEST_F(CommunicatorTest, AnswersFillTheUnitAndEndTheRequest) {
    unit.changeState([](Simulator::UnitState& state) { state.name = "Armchair"; });
    EXPECT_TRUE(request(device, listed | mask({DeviceField::MediaList, DeviceField::SoftwareVersion,
                                               DeviceField::Online, DeviceField::Contacted})));
    EXPECT_EQ(device->name(), QLatin1String("Armchair"));
    EXPECT_EQ(device->libraryUpdateTime(), QDateTime(QDate(2025, 11, 3), QTime(8, 15), Qt::UTC));
    ASSERT_TRUE(device->networkStatus());
    EXPECT_EQ(device->networkStatus()->ssid, QLatin1String("Living Room"));
    EXPECT_EQ(device->networkStatus()->interfaces.size(), 3);
    EXPECT_EQ(device->contentUpdateState().stateId, 10);
    EXPECT_EQ(device->softwareVersion(), QLatin1String("4.2.1"));
    ASSERT_TRUE(device->mediaList());
    EXPECT_EQ(device->mediaList()->media.size(), 24);
    EXPECT_TRUE(device->isOnline());
    EXPECT_TRUE(device->isContacted());
    EXPECT_TRUE(device->changedFields().test(DeviceField::Contacted));
    EXPECT_TRUE(communicator->isIdle());

    EXPECT_TRUE(request(device, listed));
    EXPECT_TRUE(device->changedFields().none()) << "the same answers change nothing";
    EXPECT_EQ(unit.counters().connections, 1U) << "the connection is used again";
}

TEST_F(CommunicatorTest, ARequestForNothingSucceedsOnceItIsSent) {
    EXPECT_TRUE(request(device, 0, 20000, std::make_shared<SetNameRequest>("Bench")));
    EXPECT_TRUE(eventually([&] { return unit.state().name == "Bench"; }));
    communicator->startRequest(device, 0);
    EXPECT_EQ(results(), QLatin1String("11")) << "inside the call, as the unit is connected";
    EXPECT_TRUE(request(device, mask({DeviceField::Online, DeviceField::Contacted})));
}

TEST_F(CommunicatorTest, TheAcknowledgementOfANameIsNoName) {
    unit.fail(AnswerFault::Drop, {"GetKelmName"});
    device->setName(QStringLiteral("Typed"));
    communicator->startRequest(device, listed, std::make_shared<SetNameRequest>("Typed"), 20000);
    const std::uint32_t others = listed & ~mask({DeviceField::Name});
    ASSERT_TRUE(eventually([&] { return (device->answeredFields().to_ulong() & others) == others; }));
    EXPECT_FALSE(device->answeredFields().test(DeviceField::Name));
    EXPECT_EQ(device->name(), QLatin1String("Typed"));
    unit.push("GetKelmName", R"({"kelmName":"Heard"})");
    EXPECT_TRUE(eventually([&] { return results() == QLatin1String("1"); }))
        << "a notification answers as well";
    EXPECT_EQ(device->name(), QLatin1String("Heard"));
}

TEST_F(CommunicatorTest, TheEndOfARequestStopsItsTimer) {
    EXPECT_TRUE(request(device, listed, 1000));
    unit.fail(AnswerFault::Drop);
    QElapsedTimer taken;
    taken.start();
    EXPECT_FALSE(request(device, listed, 1500));
    EXPECT_GE(taken.elapsed(), 1490);
}

TEST_F(CommunicatorTest, TimeOutsHaveALowerBoundAndADefault) {
    struct Attempt : Velto::Messaging::IMessengerObserver {
        void handleConnected() override {}
        void handleConnectionLost() override {}
        void handleNotice() override { gaveUpAfter = taken.elapsed(); }
        QElapsedTimer taken;
        std::atomic<qint64> gaveUpAfter{-1};
    };
    struct Line {
        std::uint32_t timeout;
        qint64 effective;
        std::shared_ptr<Velto::Messaging::Messenger> messenger = makeMessenger();
        std::shared_ptr<Communicator> communicator = std::make_shared<Communicator>();
        std::shared_ptr<Attempt> attempt = std::make_shared<Attempt>();
        qint64 endedAfter = -1;
    };
    Faults faults;
    faults.connection = ConnectionFault::HangAfterAccept;
    unit.setFaults(faults);

    Line lines[] = {{1, 500}, {500, 500}, {700, 700}, {0, 3000}};
    for (Line& line : lines) {
        line.messenger->connect(60000);
        line.messenger->AddObserver(line.attempt);
        line.communicator->setMessenger(line.messenger);
        QObject::connect(line.communicator.get(), &Communicator::requestComplete, line.communicator.get(),
                         [&line](bool success) {
                             EXPECT_FALSE(success);
                             EXPECT_EQ(line.endedAfter, -1) << "a second end";
                             line.endedAfter = line.attempt->taken.elapsed();
                         });
        line.attempt->taken.start();
        line.communicator->startRequest(device, listed, nullptr, line.timeout);
    }
    EXPECT_TRUE(eventually([&] {
        return std::all_of(std::begin(lines), std::end(lines),
                           [](const Line& l) { return l.endedAfter >= 0; });
    }));
    for (Line& line : lines) {
        EXPECT_GE(line.endedAfter, line.effective - 5) << line.timeout;
        EXPECT_GE(line.attempt->gaveUpAfter, line.effective / 2 - 5) << line.timeout;
        line.communicator->releaseMessenger();
    }
    EXPECT_LT(lines[0].endedAfter, lines[3].endedAfter);
    EXPECT_LT(lines[3].attempt->gaveUpAfter, 3000) << "the attempt has half of the time";
}

TEST_F(CommunicatorTest, ATimeOutNamesWhatIsMissingAndDropsTheConnection) {
    unit.fail(AnswerFault::Drop, {"GetUpdate", "GetContentUpdateState"});
    EXPECT_FALSE(request(device, listed, 600));
    EXPECT_EQ(log.lines("timeout"), std::vector<std::string>({"warning Communicator: timeout. Missing fields "
                                                              "0000000000000000000001100000"}));
    EXPECT_TRUE(eventually([&] { return unit.clients() == 0 && !device->isOnline(); }));
    EXPECT_FALSE(device->isFieldValid(DeviceField::Network));
    unit.setFaults({});
    EXPECT_TRUE(request(device, listed));
    EXPECT_EQ(unit.counters().connections, 2U);
}

TEST_F(CommunicatorTest, ARequestMayBeStartedInAnswerToATimeOut) {
    connectToUnit();
    unit.fail(AnswerFault::Drop);
    QObject::connect(communicator.get(), &Communicator::requestComplete, communicator.get(),
                     [&](bool success) {
                         if (!success) {
                             unit.setFaults({});
                             communicator->startRequest(device, listed, nullptr, 20000);
                         }
                     });
    communicator->startRequest(device, listed, nullptr, 500);
    EXPECT_TRUE(eventually([&] { return ended.size() == 2; }));
    EXPECT_EQ(results(), QLatin1String("01"));
    EXPECT_TRUE(device->isOnline());
    EXPECT_TRUE(device->changedFields().test(DeviceField::Online)) << "a time-out marks the unit offline";
}

TEST_F(CommunicatorTest, ADeadUnitFailsItsRequestAndKeepsItsFailures) {
    unit.stop();
    device->incrementFailureCount();
    EXPECT_FALSE(request(device, listed, 500));
    device->incrementFailureCount();
    EXPECT_FALSE(request(device, listed, 500));
    EXPECT_EQ(device->failureCount(), 2) << "starting a request is no answer";
    unit.start();
    EXPECT_TRUE(request(device, listed));
    EXPECT_EQ(device->failureCount(), 0);
}

TEST_F(CommunicatorTest, ANewRequestEndsAnOlderOneThatIsConnected) {
    connectToUnit();
    unit.fail(AnswerFault::Drop);
    communicator->startRequest(device, listed, nullptr, 20000);
    ASSERT_TRUE(eventually([&] { return unit.counters().requestsOf("GetContentUpdateState") == 1; }));
    unit.setFaults({});
    communicator->startRequest(device, mask({DeviceField::Network}), nullptr, 20000);
    EXPECT_EQ(results(), QLatin1String("0"));
    const auto lines = log.lines("new request to");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0], "warning Communicator: new request to Sofa " + unit.options().address +
                            " while previous is active, canceling previous");
    EXPECT_TRUE(eventually([&] { return ended.size() == 2; }));
    EXPECT_EQ(results(), QLatin1String("01"));
    EXPECT_EQ(unit.counters().connections, 1U);
}

TEST_F(CommunicatorTest, ARequestThatIsStartedInAnswerToBeingReplacedHasItsEndToo) {
    connectToUnit();
    unit.fail(AnswerFault::Drop);
    bool isAnswered = false;
    QObject::connect(communicator.get(), &Communicator::requestComplete, communicator.get(), [&] {
        if (!std::exchange(isAnswered, true)) {
            communicator->startRequest(device, listed, nullptr, 20000);
        }
    });
    communicator->startRequest(device, listed, nullptr, 20000);
    communicator->startRequest(device, 0);
    EXPECT_EQ(results(), QLatin1String("001"));
    EXPECT_TRUE(communicator->isIdle());
}

TEST_F(CommunicatorTest, ANewRequestReplacesAnOlderOneThatWaitsForItsConnection) {
    Faults faults;
    faults.connection = ConnectionFault::HangInTls;
    unit.setFaults(faults);
    const RunningUnit other(host, "Other");
    const auto otherDevice = other.device();
    communicator->startRequest(device, 0, std::make_shared<SetNameRequest>("Lost"), 20000);
    communicator->startRequest(otherDevice, listed, nullptr, 20000);
    EXPECT_TRUE(eventually([&] { return !ended.isEmpty(); }));
    EXPECT_EQ(results(), QLatin1String("1"));
    EXPECT_EQ(otherDevice->name(), QLatin1String("Other"));
    EXPECT_EQ(other.state().name, "Other");
    EXPECT_EQ(other.counters().requestsOf("SetKelmName"), 0U);
    EXPECT_TRUE(device->isOnline()) << "nobody has lost it";
    EXPECT_EQ(log.count("canceling"), 0U);
}

TEST_F(CommunicatorTest, AUnitWhoseRequestWasCanceledIsLeftBeforeTheNextRequestBegins) {
    communicator->startRequest(device, 0, std::make_shared<SetNameRequest>("Canceled"), 20000);
    communicator->cancelRequest();
    ASSERT_TRUE(eventually([&] { return unit.clients() == 1; })) << "the attempt itself goes on";
    RunningUnit other(host, "Other");
    bool isLeft = false;
    time.look = [&] { isLeft = eventuallyElsewhere([&] { return unit.clients() == 0; }); };
    EXPECT_TRUE(
        request(other.device(), mask({DeviceField::Name}), 20000, std::make_shared<SetNameRequest>("Next")));
    EXPECT_TRUE(isLeft) << "a connection of the one could have been taken for the other's";
    EXPECT_EQ(other.state().name, "Next");
    EXPECT_EQ(unit.counters().requestsOf("SetKelmName"), 0U);
}

TEST_F(CommunicatorTest, AUnitThatHasMovedIsNotSpokenToWhereItWas) {
    UnitOptions same;
    same.serial = "K-moved";
    same.encrypted = false;
    RunningUnit before(host, "Sofa", same);
    const auto moving = before.device();
    ASSERT_TRUE(request(moving, mask({DeviceField::Name})));
    before.fail(AnswerFault::Drop); // silent: the old connection says nothing of its end
    RunningUnit after(host, "Sofa", same);
    moving->moveTo(*after.device());
    EXPECT_TRUE(request(moving, mask({DeviceField::Network})));
    EXPECT_EQ(after.counters().requestsOf("GetNetworkState"), 1U);
    EXPECT_TRUE(moving->isOnline());
}

TEST_F(CommunicatorTest, AnEndOnItsWayIsNotTheNextRequestsEnd) {
    connectToUnit();
    communicator->startRequest(device, listed, nullptr, 20000);
    ASSERT_TRUE(
        eventuallyElsewhere([&] { return (device->answeredFields().to_ulong() & listed) == listed; }));
    ASSERT_EQ(ended.size(), 0) << "this thread has not heard of it yet";
    unit.fail(AnswerFault::Drop);
    communicator->startRequest(device, listed, nullptr, 600);
    EXPECT_LE(ended.size(), 1);
    EXPECT_TRUE(eventually([&] { return communicator->isIdle(); }));
    EXPECT_EQ(ended.size(), 2);
    EXPECT_FALSE(ended.last().first().toBool()) << "the second request was never answered";
}

TEST_F(CommunicatorTest, ATimeOutBehindTheLastAnswerIsNone) {
    connectToUnit();
    // Told of the end after the end itself was queued: connections are served in the order they were made.
    std::atomic<bool> onItsWay{false};
    QObject::connect(
        communicator.get(), &Communicator::requestCompleteInternal, communicator.get(),
        [&onItsWay] { onItsWay = true; }, Qt::DirectConnection);
    communicator->startRequest(device, listed, nullptr, 20000);
    ASSERT_TRUE(eventuallyElsewhere([&] { return onItsWay.load(); }));
    QTimerEvent late(communicator->startTimer(patience));
    QCoreApplication::sendEvent(communicator.get(), &late);
    EXPECT_TRUE(eventually([&] { return !ended.isEmpty(); }));
    EXPECT_EQ(results(), QLatin1String("1"));
    EXPECT_TRUE(request(device, listed));
    EXPECT_EQ(unit.counters().connections, 1U) << "nothing was dropped";
    EXPECT_EQ(log.count("timeout"), 0U);
}

TEST_F(CommunicatorTest, CancellingEndsTheRequestInsideTheCall) {
    communicator->cancelRequest();
    EXPECT_EQ(results(), QString()) << "there is nothing to cancel";
    communicator->startRequest(device, listed, nullptr, 20000);
    communicator->cancelRequest();
    EXPECT_EQ(results(), QLatin1String("0"));
    EXPECT_TRUE(request(device, listed)) << "also while it waits for its connection";

    unit.fail(AnswerFault::Drop);
    communicator->startRequest(device, listed, nullptr, 20000);
    communicator->cancelRequest();
    communicator->cancelRequest();
    EXPECT_EQ(results(), QLatin1String("010"));
    EXPECT_TRUE(device->isOnline());
    EXPECT_EQ(log.count("warning Communicator: canceling request"), 2U);
    unit.setFaults({});
    EXPECT_TRUE(request(device, listed));
    EXPECT_EQ(unit.counters().connections, 1U);
}

} // namespace
} // namespace orvex::Test
