#include "app/CrashHandlerImpl.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <future>

namespace {

/// Reads what the notice says, then closes it as the user would. Counts the notices.
class NoticeReader : public QObject {
public:
    NoticeReader() {
        connect(&m_timer, &QTimer::timeout, this, &NoticeReader::look);
        m_timer.start(1);
    }

    int notices = 0;
    QString title;
    QString text;

private:
    void look() {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            title = box->windowTitle();
            text = box->text();
            ++notices;
            box->accept();
        }
    }
    QTimer m_timer;
};

TEST(CrashNotice, IsShownInPlaceWhenTheUserInterfaceCrashed) {
    NoticeReader reader;
    Velto::CrashHandlerImpl().handleCrash();
    EXPECT_EQ(reader.notices, 1);
    EXPECT_EQ(reader.title, QStringLiteral("Orvex"));
    EXPECT_EQ(reader.text, QStringLiteral("An error has occured. The application must exit."));
}

TEST(CrashNotice, IsShownOnTheUserInterfacesThreadAndWaitedForWhenAnotherCrashed) {
    NoticeReader reader;
    auto crashed = std::async(std::launch::async, [] { Velto::CrashHandlerImpl().handleCrash(); });
    const auto isOver = [&crashed] {
        return crashed.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    };
    EXPECT_TRUE(QTest::qWaitFor(isOver, 20000));
    EXPECT_EQ(reader.notices, 1);
}

TEST(CrashNotice, IsGivenUpWhenTheUserInterfaceWaitsForTheThreadThatCrashed) {
    std::async(std::launch::async, [] { Velto::CrashHandlerImpl().handleCrash(); }).get();
    NoticeReader reader;
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(reader.notices, 0);
}

} // namespace
