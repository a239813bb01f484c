#include "app/InstanceScan.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace {

using orvex::ProcessId;
using orvex::ProcessTable;

const std::string program = orvex::executableName("Quivera");
const std::string background = orvex::executableName("QuiveraBgApp");

class InventedProcesses : public ProcessTable {
public:
    ProcessId ownId() const override { return 7; }
    std::optional<std::vector<ProcessId>> list() const override {
        if (!listable) {
            return std::nullopt;
        }
        std::vector<ProcessId> ids;
        for (const auto& [id, name] : names) {
            ids.push_back(id);
        }
        return ids;
    }
    std::string name(ProcessId id) const override {
        const auto found = names.at(id);
        return found.empty() ? unknownName : found;
    }
    void end(ProcessId id) override { ended.push_back(id); }

    bool listable = true;
    std::map<ProcessId, std::string> names;
    std::vector<ProcessId> ended;
};

TEST(InstanceScan, EndsEveryOtherCopyAndNothingElse) {
    InventedProcesses processes;
    processes.names = {{0, program},       {3, program}, {7, program},  {8, "quivera"},
                       {9, program + "2"}, {10, ""},     {11, program}, {12, background}};
    EXPECT_FALSE(orvex::endOtherInstances(processes)) << "the background companion runs";
    EXPECT_EQ(processes.ended, (std::vector<ProcessId>{3, 11}));
}

TEST(InstanceScan, AsksForTheBackgroundCompanionUnlessItRunsOrNothingCanBeListed) {
    InventedProcesses processes;
    EXPECT_TRUE(orvex::endOtherInstances(processes)) << "an empty list";
    processes.names = {{7, program}, {8, ""}};
    EXPECT_TRUE(orvex::endOtherInstances(processes));
    processes.listable = false;
    EXPECT_FALSE(orvex::endOtherInstances(processes));
}

/// The system's real table, of which only some processes are shown: no other copy that runs on this computer
/// is to be ended by a test.
class OnlyThese : public ProcessTable {
public:
    explicit OnlyThese(std::vector<ProcessId> shown)
        : m_shown(std::move(shown)) {}
    ProcessId ownId() const override { return m_system->ownId(); }
    std::optional<std::vector<ProcessId>> list() const override {
        auto ids = m_system->list();
        ids->erase(std::remove_if(ids->begin(), ids->end(),
                                  [this](ProcessId id) {
                                      return std::find(m_shown.begin(), m_shown.end(), id) == m_shown.end();
                                  }),
                   ids->end());
        return ids;
    }
    std::string name(ProcessId id) const override { return m_system->name(id); }
    void end(ProcessId id) override { m_system->end(id); }

private:
    std::unique_ptr<ProcessTable> m_system = orvex::makeSystemProcessTable();
    std::vector<ProcessId> m_shown;
};

/// A copy of the small program that runs under another name.
class RunningCopy {
public:
    RunningCopy(const QTemporaryDir& folder, const std::string& name, const QString& manner)
        : m_file(folder.filePath(QString::fromStdString(name))) {
        QFile::copy(QStringLiteral(SMALL_PROGRAM), m_file);
        m_process.start(m_file, {manner});
        m_ready = m_process.waitForReadyRead() && m_process.readLine().startsWith("ready");
    }
    bool isReady() const { return m_ready; }
    ProcessId id() const { return static_cast<ProcessId>(m_process.processId()); }
    bool hasEnded() { return m_process.waitForFinished(2000); }
    bool isRunning() { return m_process.state() == QProcess::Running && !m_process.waitForFinished(1); }
    void replaceFile() const { QFile::remove(m_file); }

private:
    QString m_file;
    QProcess m_process;
    bool m_ready = false;
};

TEST(InstanceScan, EndsRealCopiesEvenOnesThatWereReplacedOrDoNotListen) {
    const QTemporaryDir first;
    const QTemporaryDir second;
    RunningCopy willing(first, program, QStringLiteral("willing"));
    RunningCopy stubborn(second, program, QStringLiteral("stubborn"));
    RunningCopy companion(first, background, QStringLiteral("willing"));
    RunningCopy stranger(first, orvex::executableName("QuiveraX"), QStringLiteral("willing"));
    ASSERT_TRUE(willing.isReady() && stubborn.isReady() && companion.isReady() && stranger.isReady());
    willing.replaceFile();

    OnlyThese processes({willing.id(), stubborn.id(), companion.id(), stranger.id()});
    EXPECT_FALSE(orvex::endOtherInstances(processes));
    EXPECT_TRUE(willing.hasEnded());
    EXPECT_TRUE(stubborn.hasEnded());
    EXPECT_TRUE(companion.isRunning());
    EXPECT_TRUE(stranger.isRunning());
}

TEST(ProcessTable, ListsThisProcessByNameAndGivesNoNameToOneThatIsNotThere) {
    const auto processes = orvex::makeSystemProcessTable();
    const auto ids = processes->list();
    ASSERT_TRUE(ids);
    EXPECT_NE(std::find(ids->begin(), ids->end(), processes->ownId()), ids->end());
    EXPECT_EQ(processes->ownId(), static_cast<ProcessId>(QCoreApplication::applicationPid()));
    EXPECT_EQ(processes->name(processes->ownId()), orvex::executableName("app_shell_test"));
    EXPECT_EQ(processes->name(0xFFFFFFF0), "<unknown>");
}

} // namespace
