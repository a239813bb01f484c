#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

namespace {

/// The program in a folder of its own, with a home of its own.
class ProgramTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_folder.isValid());
        ASSERT_TRUE(QFile::copy(QStringLiteral(PROGRAM), program()));
        ASSERT_TRUE(
            QFile::copy(QStringLiteral(SHIPPED_LOG_CONFIG), m_folder.filePath("QuiveraApp.log.config")));
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_folder.path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder.path());
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
    }

    void TearDown() override {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

    QString program() const { return m_folder.filePath(QStringLiteral("Quivera")); }

    /// Whether the program would end in order: before that, a signal just kills it.
    bool catchesTermination() const {
        QFile status(QStringLiteral("/proc/%1/status").arg(m_process.processId()));
        if (!status.open(QIODevice::ReadOnly)) {
            return false;
        }
        const QRegularExpressionMatch caught = QRegularExpression(QStringLiteral("SigCgt:\\s*([0-9a-f]+)"))
                                                   .match(QString::fromLatin1(status.readAll()));
        return (caught.captured(1).toULongLong(nullptr, 16) >> (SIGTERM - 1) & 1U) != 0;
    }

    /// Everything in the log files of this run.
    QString log() const {
        QString text;
        const QDir data(m_folder.filePath(QStringLiteral("Orvex/QuiveraApp")));
        for (const QString& name : data.entryList({"*.log*"}, QDir::Files)) {
            QFile file(data.filePath(name));
            if (file.open(QIODevice::ReadOnly)) {
                text += QString::fromUtf8(file.readAll());
            }
        }
        return text;
    }

    QTemporaryDir m_folder;
    QProcess m_process;
};

TEST_F(ProgramTest, ShowsItsWindowAndLeavesInOrderWhenItIsAskedTo) {
    m_process.start(program(), QStringList());
    ASSERT_TRUE(m_process.waitForStarted());
    ASSERT_TRUE(QTest::qWaitFor([this] { return catchesTermination(); }, 30000))
        << m_process.readAll().toStdString();
    ::kill(static_cast<pid_t>(m_process.processId()), SIGTERM);
    ASSERT_TRUE(m_process.waitForFinished(30000)) << "it hangs";
    const auto output = m_process.readAll().toStdString();
    EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit) << output;
    EXPECT_EQ(m_process.exitCode(), 0) << output;
    EXPECT_TRUE(log().contains(QStringLiteral("QuiveraApp ") + PROGRAM_VERSION + " starting..."))
        << log().toStdString();
    EXPECT_FALSE(log().contains(QStringLiteral("omponents"))) << "no step failed";
    EXPECT_TRUE(QDir(m_folder.filePath(QStringLiteral("Orvex/QuiveraApp"))).entryList({"*crash*"}).isEmpty());
}

} // namespace
