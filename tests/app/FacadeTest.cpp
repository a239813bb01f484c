#include "app/Facade.h"

#include "simulator/SimulatedUnit.h"
#include "simulator/SimulatorHost.h"

#include <Velto/ApplicationInfo.h>
#include <Velto/ComponentConfigurator.h>

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace orvex::Test {
namespace {

constexpr int patience = 30000; // ms

/// The core as the pages see it, connected directly to one unit by its host name.
class FacadeTest : public testing::Test {
protected:
    FacadeTest() {
        VeltoExportQAutoDiscoveryComponent();
        VeltoExportZCommComponent();
        components.Init(true);
        Simulator::UnitOptions options;
        options.address = hostName;
        options.port = 12740;
        options.media = 400;
        unit = std::make_unique<Simulator::SimulatedUnit>(host, options);
        unit->start();
        facade->start();
    }
    ~FacadeTest() override { facade.reset(); }

    QAbstractItemModel& media() const { return *qobject_cast<QAbstractItemModel*>(facade->mediaListModel()); }

    void openMediaList() {
        auto* list = qobject_cast<QAbstractItemModel*>(facade->deviceListModel());
        ASSERT_TRUE(QTest::qWaitFor([&] { return list->rowCount() == 1; }, patience));
        EXPECT_TRUE(QMetaObject::invokeMethod(facade->deviceManager(), "selectDevice", Q_ARG(int, 0)));
        EXPECT_TRUE(QMetaObject::invokeMethod(facade->deviceManager(), "showingMediaList"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return media().rowCount() == 400; }, patience));
    }

    QStringList column(const char* role) const {
        QStringList values;
        for (int row = 0; row < media().rowCount(); ++row) {
            values << media().index(row, 0).data(media().roleNames().key(role)).toString();
        }
        return values;
    }

    /// Whether the rows are in the order of these columns, each one deciding where those before are equal.
    bool isOrderedBy(std::initializer_list<std::pair<const char*, Qt::SortOrder>> keys) const {
        std::vector<std::pair<QStringList, Qt::SortOrder>> columns;
        for (const auto& [role, order] : keys) {
            columns.emplace_back(column(role), order);
        }
        for (int row = 1; row < media().rowCount(); ++row) {
            for (const auto& [values, order] : columns) {
                const int compared = values[row - 1].compare(values[row], Qt::CaseInsensitive);
                if (compared != 0) {
                    if ((compared < 0) != (order == Qt::AscendingOrder)) {
                        return false;
                    }
                    break;
                }
            }
        }
        return true;
    }

    /// The messenger holds an address to the first key it saw there.
    static std::string nextAddress() {
        static int count = 0;
        return "127.8.12." + std::to_string(++count);
    }

    const std::string hostName = nextAddress();
    Simulator::SimulatorHost host{{false, 0}};
    std::unique_ptr<Simulator::SimulatedUnit> unit;
    Velto::ComponentConfigurator components;
    std::shared_ptr<Facade> facade = std::make_shared<Facade>(hostName);
};

TEST_F(FacadeTest, SortsTheTitlesByColumnWithTheOthersDecidingBetweenEqualOnes) {
    openMediaList();
    const auto up = Qt::AscendingOrder;
    const auto down = Qt::DescendingOrder;
    facade->sortMediaList("title", down);
    EXPECT_TRUE(isOrderedBy({{"title", down}}));
    facade->sortMediaList("duration", down);
    EXPECT_TRUE(isOrderedBy({{"duration", down}, {"title", up}}));
    facade->sortMediaList("releaseDate", down);
    EXPECT_TRUE(isOrderedBy({{"releaseDate", down}, {"title", down}}));
    facade->sortMediaList("quiveraCodeDate", up);
    EXPECT_TRUE(isOrderedBy({{"quiveraCodeDate", up}, {"releaseDate", up}, {"title", up}}));
    const QStringList before = column("title");
    facade->sortMediaList("nothing", down);
    EXPECT_EQ(column("title"), before);
    facade->sortMediaList("language", down);
    EXPECT_TRUE(isOrderedBy({{"title", down}})) << "no key of its own";
}

TEST_F(FacadeTest, FiltersTheTitlesByAnExpressionWhateverTheCase) {
    openMediaList();
    const QAbstractItemModelTester tester(&media(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto shown = [&](const char* filter) {
        facade->filterMediaList(filter);
        return media().rowCount();
    };
    const QStringList all = column("title");
    const auto engines = static_cast<int>(
        std::count_if(all.begin(), all.end(), [](const QString& title) { return title.contains("Engine"); }));
    ASSERT_GT(engines, 0);
    EXPECT_EQ(shown("eNGINE"), engines);
    EXPECT_EQ(shown("^the (silent|last) harbour$"), 2);
    EXPECT_EQ(shown("no such title"), 0);
    EXPECT_EQ(shown(""), 400);
    EXPECT_EQ(facade->getAppVersion().toStdString(), Velto::ApplicationInfo::Version());
}

} // namespace
} // namespace orvex::Test
