#include "app/CompanionProgram.h"
#include "app/CompanionSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using orvex::companionPath;
using orvex::CompanionProgram;

class CompanionTest : public testing::Test {
protected:
    void SetUp() override {
        m_earlier = qgetenv("XDG_CONFIG_DIRS");
        qputenv("XDG_CONFIG_DIRS", (m_empty.path() + ":relative:" + m_folder.path()).toLocal8Bit());
        QFile::copy(QStringLiteral(SMALL_PROGRAM), m_program);
    }
    void TearDown() override { qputenv("XDG_CONFIG_DIRS", m_earlier); }

    static void record(const QTemporaryDir& folder, const QString& text) {
        QFile file(folder.filePath(QStringLiteral("Orvex.conf")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }

    QTemporaryDir m_empty;
    QTemporaryDir m_folder;
    const QString m_program = m_folder.filePath(QStringLiteral("Zoë 席 companion"));
    QByteArray m_earlier;
};

TEST_F(CompanionTest, IsStartedWhenItsRecordedPathIsAFile) {
    record(m_folder,
           QStringLiteral("[MotionService]\nPanel=\"%1\"\n[InputModeControl]\nAppPerMode\\2\\Path=%1\n"
                          "[QuiveraBgApp]\nInstallPath=%1\n")
               .arg(m_program));
    EXPECT_EQ(companionPath(QStringLiteral("MotionService/Panel")), m_program);
    EXPECT_EQ(companionPath(QStringLiteral("InputModeControl/AppPerMode/2/Path")), m_program);
    const CompanionProgram companion{QString::fromLatin1(orvex::backgroundCompanionValue)};
    EXPECT_TRUE(companion.isInstalled());
    EXPECT_TRUE(companion.start());
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(m_program + QStringLiteral(".started")); }));
}

TEST_F(CompanionTest, IsNotStartedWithoutAUsableRecord) {
    const CompanionProgram companion{QStringLiteral("MotionService/Panel")};
    const auto isRefused = [&companion] { return !companion.isInstalled() && !companion.start(); };
    EXPECT_TRUE(isRefused()) << "no settings at all";
    record(m_folder, QStringLiteral("[Other]\nPanel=%1\n").arg(m_program));
    EXPECT_TRUE(isRefused()) << "no value";
    record(m_folder, QStringLiteral("[MotionService]\nPanel=%1.gone\n").arg(m_program));
    EXPECT_TRUE(isRefused()) << "no file";
    record(m_folder, QStringLiteral("[MotionService]\nPanel=%1\n").arg(m_folder.path()));
    EXPECT_TRUE(isRefused()) << "a folder";
    QFile::setPermissions(m_program, QFile::ReadOwner);
    record(m_folder, QStringLiteral("[MotionService]\nPanel=%1\n").arg(m_program));
    EXPECT_TRUE(companion.isInstalled());
    EXPECT_FALSE(companion.start()) << "a file that cannot be run";
}

TEST_F(CompanionTest, FirstSettingsFileOnThePathCounts) {
    record(m_folder, QStringLiteral("[MotionService]\nPanel=later\n"));
    EXPECT_EQ(companionPath(QStringLiteral("MotionService/Panel")), QStringLiteral("later"));
    record(m_empty, QStringLiteral("[MotionService]\nPanel=first\n"));
    EXPECT_EQ(companionPath(QStringLiteral("MotionService/Panel")), QStringLiteral("first"));
}

} // namespace
