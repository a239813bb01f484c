#pragma once

#include "device/DeviceField.h"
#include "device/DeviceInfo.h"
#include "messaging/Communicator.h"
#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"
#include "tests/device/ProgramLogCapture.h"

#include <Velto/ComponentConfigurator.h>
#include <Velto/Messaging/Messenger.h>
#include <orvex/Messaging/Discovered.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>

namespace orvex::Test {

using Simulator::AnswerFault;
using Simulator::ConnectionFault;
using Simulator::Faults;
using Simulator::SimulatedUnit;
using Simulator::UnitOptions;

/// Waits long enough for the slowest build on the busiest machine.
constexpr int patience = 30000; // ms

template <class Condition>
bool eventually(Condition condition) {
    return QTest::qWaitFor(condition, patience);
}

/// Waits for something that other threads bring about, while this thread takes no events.
template <class Condition>
bool eventuallyElsewhere(Condition condition) {
    QElapsedTimer waited;
    waited.start();
    while (!condition() && waited.elapsed() < patience) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return condition();
}

/// A unit at a loopback address of its own: the messenger holds every address to the first key it saw there.
class RunningUnit : public SimulatedUnit {
public:
    /// A loopback address that no other unit of this program has.
    static std::string freeAddress() {
        static std::atomic<int> count{0};
        const int number = ++count;
        return "127.7." + std::to_string(number / 200) + "." + std::to_string(number % 200 + 1);
    }

    explicit RunningUnit(Simulator::SimulatorHost& host, const std::string& name = "Sofa",
                         UnitOptions options = {})
        : SimulatedUnit(host, at(name, std::move(options))) {
        start();
    }

    /// What discovery would report of it.
    Messaging::Discovered::Values announced() const {
        const auto announcement = this->announcement();
        Messaging::Discovered::Values values;
        values.name = announcement.name;
        values.address = address();
        values.serial = announcement.serial;
        values.uid = announcement.uid;
        values.productVendor = announcement.productVendor;
        values.productName = announcement.productName;
        values.productModel = announcement.productModel;
        values.port = announcement.port;
        values.encrypted = announcement.encrypted;
        return values;
    }

    std::shared_ptr<DeviceInfo> device() const {
        return std::make_shared<DeviceInfo>(Messaging::Discovered(announced()));
    }

    void fail(AnswerFault fault, std::set<std::string> types = {}) {
        Faults faults;
        faults.answer = fault;
        faults.types = std::move(types);
        setFaults(faults);
    }

private:
    static UnitOptions at(const std::string& name, UnitOptions options) {
        static std::atomic<int> count{0};
        const int number = ++count;
        options.name = name;
        options.number = static_cast<std::size_t>(number);
        if (options.address == UnitOptions().address) {
            options.address = freeAddress();
        }
        return options;
    }
};

/// The library runs, and a `Communicator` has a messenger without discovery.
class CommunicatorFixture : public testing::Test {
public:
    ~CommunicatorFixture() override {
        messenger.reset();
        communicator.reset();
    }

protected:
    explicit CommunicatorFixture(TimeSource& time = TimeSource::system())
        : communicator(std::make_shared<Communicator>(time)) {
        VeltoExportQAutoDiscoveryComponent();
        VeltoExportZCommComponent();
        components.Init(true);
        messenger->connect(3000);
        communicator->setMessenger(messenger);
    }

    static std::shared_ptr<Velto::Messaging::Messenger> makeMessenger() {
        using namespace Velto::Messaging;
        return std::make_shared<Messenger>(std::vector<std::shared_ptr<Messenger::DiscoveryStrategyInfo>>{},
                                           "KELM", ITransport::TransportType::WebSocket);
    }

    static std::uint32_t mask(std::initializer_list<int> fields) { return DeviceField::mask(fields); }

    /// The results so far, "1" for each success and "0" for each failure.
    QString results() const {
        QString text;
        for (const auto& arguments : ended) {
            text += arguments.first().toBool() ? QLatin1Char('1') : QLatin1Char('0');
        }
        return text;
    }

    /// Runs one request to its end; whether it succeeded.
    bool request(const std::shared_ptr<DeviceInfo>& unit, std::uint32_t fields, std::uint32_t timeout = 20000,
                 std::shared_ptr<DeviceUpdateRequest> update = {}) {
        const int before = ended.size();
        communicator->startRequest(unit, fields, std::move(update), timeout);
        EXPECT_TRUE(eventually([&] { return ended.size() > before; }));
        EXPECT_EQ(ended.size(), before + 1);
        return !ended.isEmpty() && ended.last().first().toBool();
    }

    ProgramLogCapture log;
    Simulator::SimulatorHost host{{false, 0}};
    Velto::ComponentConfigurator components;
    std::shared_ptr<Velto::Messaging::Messenger> messenger = makeMessenger();
    std::shared_ptr<Communicator> communicator;
    QSignalSpy ended{communicator.get(), &Communicator::requestComplete};
};

/// One unit to ask.
class OneUnitFixture : public CommunicatorFixture {
protected:
    using CommunicatorFixture::CommunicatorFixture;

    /// What a row of the unit list is read for.
    static constexpr std::uint32_t listed =
        DeviceField::mask({DeviceField::Name, DeviceField::LibraryUpdateTime, DeviceField::ContentUpdate,
                           DeviceField::Network});

    /// The connection that the second request of a test reuses.
    void connectToUnit() {
        ASSERT_TRUE(request(device, mask({DeviceField::Name})));
        ended.clear();
    }

    RunningUnit unit{host};
    std::shared_ptr<DeviceInfo> device = unit.device();
};

} // namespace orvex::Test
