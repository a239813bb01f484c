#include "velto/core/Areas.h"

#include <Velto/ApplicationInfo.h>
#include <Velto/Buffer.h>
#include <Velto/ComponentConfigurator.h>
#include <Velto/Loggers.h>

#include <gtest/gtest.h>
#include <spdlog/logger.h>
#include <spdlog/sinks/ostream_sink.h>

#include <algorithm>
#include <atomic>
#include <fstream>
#include <future>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace {

using Velto::ApplicationInfo;
using Velto::BufferQueue;
using Velto::Component;
using Result = Velto::Component::Result;

namespace fs = std::filesystem;

TEST(BufferQueue, LendsEachBufferToOneUserAtATimeAndReusesItEmpty) {
    const auto queue = BufferQueue::Create(1, 16);
    auto loan = queue->AcquireBuffer(16, false);
    ASSERT_TRUE(loan);
    loan->GetBuffer().AppendDataPtr("{\"a\":", 5);
    loan->GetBuffer().AppendDataPtr("1}", 2);
    EXPECT_EQ(loan->GetBuffer().View(), "{\"a\":1}");
    EXPECT_FALSE(queue->AcquireBuffer(16, false));

    loan.reset();
    loan = queue->AcquireBuffer(64, false);
    ASSERT_TRUE(loan);
    EXPECT_EQ(loan->GetBuffer().GetDataSize(), 0U);
    EXPECT_GE(loan->GetBuffer().GetCapacity(), 64U);
}

TEST(BufferQueue, WaitingUserGetsTheBufferThatAnotherThreadGivesBack) {
    const auto queue = BufferQueue::Create(1, 16);
    auto loan = queue->AcquireBuffer(16, true);
    auto waiting =
        std::async(std::launch::async, [&queue] { return queue->AcquireBuffer(16, true) != nullptr; });
    std::thread([&loan] { loan.reset(); }).join();
    EXPECT_TRUE(waiting.get());
}

TEST(BufferQueue, NeverLendsMoreThanItHasWhenManyThreadsWait) {
    const auto queue = BufferQueue::Create(2, 16);
    std::atomic<int> onLoan{0};
    std::atomic<int> highest{0};
    const auto use = [&] {
        for (int i = 0; i < 300; ++i) {
            const auto loan = queue->AcquireBuffer(16, true);
            const int now = ++onLoan;
            int seen = highest;
            while (now > seen && !highest.compare_exchange_weak(seen, now)) {
            }
            loan->GetBuffer().AppendDataPtr(&i, sizeof i);
            --onLoan;
        }
    };
    std::vector<std::thread> users;
    for (int i = 0; i < 4; ++i) {
        users.emplace_back(use);
    }
    for (std::thread& user : users) {
        user.join();
    }
    EXPECT_LE(highest, 2);
}

TEST(BufferQueue, LoanOutlivesItsQueueAndAHugeMessageDoesNotKeepItsMemory) {
    auto queue = BufferQueue::Create(1, 1024);
    queue->AcquireBuffer(16, false)->GetBuffer().Assign(std::string(1 << 20, 'x'));
    auto loan = queue->AcquireBuffer(16, false);
    ASSERT_TRUE(loan);
    EXPECT_LT(loan->GetBuffer().GetCapacity(), std::size_t{1} << 16);
    queue.reset();
    loan->GetBuffer().AppendDataPtr("still", 5);
    EXPECT_EQ(loan->GetBuffer().View(), "still");
}

/// What the two test components were asked to do, and what they answer.
std::vector<std::string> steps;
Result firstAnswer = Result::Success;
bool secondThrows = false;

class RecordingComponent : public Component {
public:
    explicit RecordingComponent(std::string name)
        : m_name(std::move(name)) {}
    Result Init() override { return note("init"); }
    Result Resume() override { return note("resume"); }
    Result Suspend() override { return note("suspend"); }
    Result Shutdown() override { return note("shutdown"); }

private:
    Result note(const char* step) {
        steps.push_back(m_name + " " + step);
        if (m_name == "second" && secondThrows) {
            throw std::runtime_error("no thread to be had");
        }
        return m_name == "first" ? firstAnswer : Result::Success;
    }
    std::string m_name;
};

class ComponentConfiguratorTest : public testing::Test {
protected:
    void SetUp() override {
        steps.clear();
        firstAnswer = Result::Success;
        secondThrows = false;
        Velto::RegisterComponent("first", [] { return make("first"); });
        Velto::RegisterComponent("second", [] { return make("second"); });
        Velto::RegisterComponent("first", [] { return make("another first"); });
    }
    static std::unique_ptr<Component> make(const char* name) {
        return std::make_unique<RecordingComponent>(name);
    }
    using Steps = std::vector<std::string>;
};

TEST_F(ComponentConfiguratorTest, GoesUpInOrderAndDownInTheOppositeOrder) {
    Velto::ComponentConfigurator components;
    EXPECT_EQ(components.Init(false), Result::Success);
    EXPECT_EQ(steps, (Steps{"first init", "second init"}));
    steps.clear();
    EXPECT_EQ(components.Resume(), Result::Success);
    EXPECT_EQ(components.Suspend(), Result::Success);
    EXPECT_EQ(components.Shutdown(), Result::Success);
    EXPECT_EQ(steps, (Steps{"first resume", "second resume", "second suspend", "first suspend",
                            "second shutdown", "first shutdown"}));
}

TEST_F(ComponentConfiguratorTest, ReportsTheWorstResultAndStillDrivesTheOthers) {
    Velto::ComponentConfigurator components;
    firstAnswer = Result::ConfigurationFailure;
    EXPECT_EQ(components.Init(true), Result::ConfigurationFailure);
    EXPECT_EQ(steps, (Steps{"first init", "second init", "first resume", "second resume"}));
    secondThrows = true;
    EXPECT_EQ(components.Suspend(), Result::FatalFailure);
    EXPECT_EQ(steps.back(), "first suspend");
}

TEST_F(ComponentConfiguratorTest, EndsWhatStillRunsButLeavesAloneWhatWasNeverResumed) {
    {
        Velto::ComponentConfigurator components;
        components.Init(false);
    }
    EXPECT_EQ(steps, (Steps{"first init", "second init"}));
    steps.clear();
    {
        Velto::ComponentConfigurator components;
        components.Init(true);
        steps.clear();
    }
    EXPECT_EQ(steps, (Steps{"second suspend", "first suspend", "second shutdown", "first shutdown"}));
}

TEST(AreaLoggers, WriteOnlyBetweenTheirInitialiserAndTheirRelease) {
    const auto area = Velto::detail::Area::QAutoDiscovery;
    Velto::detail::areaLogger(area)->error("too early");

    std::ostringstream text;
    const auto sink = std::make_shared<spdlog::sinks::ostream_sink_mt>(text);
    sink->set_pattern("%n %v");
    Velto::InitLoggerQAutoDiscoveryComponent(
        [&sink](const std::string& name) { return std::make_shared<spdlog::logger>(name, sink); });
    Velto::detail::areaLogger(area)->info("probe {}", 1);
    Velto::detail::areaLogger(Velto::detail::Area::ZComm)->info("another area");
    Velto::ReleaseLoggers();
    Velto::detail::areaLogger(area)->error("too late");
    EXPECT_EQ(text.str().substr(0, text.str().find_last_not_of("\r\n") + 1), "Velto.QAutoDiscovery probe 1");
}

class ApplicationInfoTest : public testing::Test {
protected:
    void SetUp() override {
        fs::remove_all(m_root);
        fs::create_directories(m_root);
    }
    void TearDown() override { fs::remove_all(m_root); }

    bool init(const fs::path& root) {
        return ApplicationInfo::Init("Quivera: App-2_x", "Quivera", "Orvex", "1.2.3", root.u8string(),
                                     ApplicationInfo::DataFolderType::User, 0, nullptr);
    }

    const fs::path m_root = fs::temp_directory_path() / fs::u8path(u8"velto-core-Zoë-席");
};

TEST_F(ApplicationInfoTest, RegistersTheProcessAndMakesItsDataFolderUnderAnyName) {
    EXPECT_TRUE(init(m_root));
    EXPECT_EQ(ApplicationInfo::Name(), "Quivera: App-2_x");
    EXPECT_EQ(ApplicationInfo::Version(), "1.2.3");
    EXPECT_EQ(ApplicationInfo::NormalizedName(), "QuiveraApp-2_x");
    EXPECT_EQ(ApplicationInfo::DataPath(), m_root / "Orvex" / "Quivera");
    EXPECT_TRUE(fs::is_directory(ApplicationInfo::DataPath()));
    EXPECT_EQ(ApplicationInfo::ExecutablePath().stem(), "velto_core_test");
}

TEST_F(ApplicationInfoTest, TellsThatTheDataFolderCannotBeMadeAndIsRegisteredAllTheSame) {
    std::ofstream(m_root / "Orvex") << "a file where the folder should be";
    EXPECT_FALSE(init(m_root));
    EXPECT_EQ(ApplicationInfo::DataPath(), m_root / "Orvex" / "Quivera");
}

} // namespace
