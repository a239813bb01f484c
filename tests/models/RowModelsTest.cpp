#include "messaging/records/DetailedStatusInfo.h"
#include "messaging/records/MediaList.h"
#include "models/DetailedStatusModel.h"
#include "models/MediaListModel.h"
#include "models/MediaListProxy.h"
#include "tests/device/SelectedUnitFixture.h"
#include "tests/models/Shadow.h"

#include <random>

namespace orvex::Test {
namespace {

using Module = std::shared_ptr<ModuleInfo>;

Module module(const QString& name, std::vector<StatusField> fields = {},
              std::vector<Module> subModules = {}) {
    auto made = std::make_shared<ModuleInfo>();
    made->name = name;
    made->properties = {{"Index", "1"}, {"TypeName", "T"}, {"Firmware", "2.0"}};
    made->fields = std::move(fields);
    made->subModules = std::move(subModules);
    return made;
}

StatusField field(int category, int id, const QString& value) {
    StatusField made;
    made.category = category;
    made.id = id;
    made.name = QStringLiteral("f%1.%2").arg(category).arg(id);
    made.value = value;
    made.unit = QStringLiteral("mm");
    made.description = QStringLiteral("d");
    return made;
}

QSharedPointer<DetailedStatusInfo> tree(std::vector<Module> modules) {
    auto info = QSharedPointer<DetailedStatusInfo>::create();
    info->modules = std::move(modules);
    return info;
}

const StatusField stateOk = field(0, 1, QStringLiteral("0"));
const StatusField fault = field(2, 7, QStringLiteral("5"));

class DetailedStatusModelTest : public SelectedUnitFixture {
protected:
    DetailedStatusModelTest() { model.setDeviceInfoManager(manager); }

    /// "level name|value|status" of every row.
    QStringList rows() const {
        QStringList shown;
        for (int row = 0; row < model.rowCount(); ++row) {
            const auto read = [&](int role) { return shadow.value(row, role).toString(); };
            shown << read(256) + ' ' + read(257) + '|' + read(258) + '|' + read(259);
        }
        return shown;
    }

    DetailedStatusModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    Shadow shadow{model};
};

TEST_F(DetailedStatusModelTest, ShowsEveryKindOfFieldBelowItsModule) {
    first->setDetailedStatusInfo(tree({module(
        "Hub", {field(1, 3, "12"), field(2, 4, "0"), field(0, 1, "20"), field(0, 2, "x"), field(9, 1, "")},
        {module("Seat", {stateOk}), module("Base", {field(0, 1, "nonsense"), fault, stateOk})})}));
    manager->selectDevice(0);
    EXPECT_EQ(rows(), QStringList({"0 Hub 1|T|3", "1 Firmware|2.0|0", "1 f1.3|12 mm|0", "1 f0.2|d|0",
                                   "1 f9.1||0", "1 Seat 1|T|1", "2 Firmware|2.0|0", "1 Base 1|T|3",
                                   "2 Firmware|2.0|0", "2 f2.7||3"}));
    model.setFilter(static_cast<unsigned>(DetailedStatusModel::Filter::TopologyOutline));
    EXPECT_EQ(rows(), QStringList({"0 Hub 1|T|3", "1 Seat 1|T|1", "1 Base 1|T|3"}));
    model.setFilter(static_cast<unsigned>(DetailedStatusModel::Filter::TopologyDetails));
    EXPECT_EQ(rows().mid(0, 3), QStringList({"0 Hub 1|T|3", "1 Firmware|2.0|0", "1 Seat 1|T|1"}));
    shadow.takeChanges();
    model.setFilter(static_cast<unsigned>(DetailedStatusModel::Filter::TopologyDetails));
    EXPECT_EQ(shadow.takeChanges(), QStringList()) << "the filter is the same";
    EXPECT_TRUE(shadow.isTrue());
}

TEST_F(DetailedStatusModelTest, TheFaultFiltersKeepTheOuterModulesAndWhereTheFaultIs) {
    const auto leaf = [](const char* name, const StatusField& state) { return module(name, {state}); };
    first->setDetailedStatusInfo(
        tree({module("Hub", {stateOk},
                     {module("Left", {}, {leaf("a", stateOk), leaf("b", fault)}),
                      module("Right", {}, {leaf("c", stateOk), leaf("d", stateOk)})})}));
    model.setFilter(static_cast<unsigned>(DetailedStatusModel::Filter::TopologyOutline));
    manager->selectDevice(0);
    const auto names = [&] {
        QStringList shown;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QString name = shadow.value(row, DetailedStatusModel::NameRole).toString();
            if (name.endsWith(QLatin1String(" 1"))) {
                shown << name.chopped(2);
            }
        }
        return shown;
    };
    model.setFilter(static_cast<unsigned>(DetailedStatusModel::Filter::FaultsOnly));
    EXPECT_EQ(names(), QStringList({"Hub", "Left", "b", "Right"}));
    model.setFilter(static_cast<unsigned>(DetailedStatusModel::Filter::FaultsWithSiblings));
    EXPECT_EQ(names(), QStringList({"Hub", "Left", "a", "b", "Right"}));
    model.setFilter(static_cast<unsigned>(DetailedStatusModel::Filter::FullStatus));
    EXPECT_EQ(names(), QStringList({"Hub", "Left", "a", "b", "Right", "c", "d"}));
    EXPECT_TRUE(shadow.isTrue());
}

class MediaListModelTest : public SelectedUnitFixture {
protected:
    MediaListModelTest() { model.setDeviceInfoManager(manager); }

    static QSharedPointer<MediaList> titles(const QString& letters) {
        auto list = QSharedPointer<MediaList>::create();
        for (const QChar letter : letters) {
            MediaEntry entry;
            entry.title = letter;
            list->media.append(entry);
        }
        return list;
    }

    MediaListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    Shadow shadow{model};
};

TEST_F(MediaListModelTest, ReportsRunsOfRowsThatDiffer) {
    first->setMediaList(titles("abcde"));
    second->setMediaList(titles("abcde"));
    manager->selectDevice(0);
    EXPECT_EQ(shadow.takeChanges(), QStringList({"+0-4"}));
    refresh([](DeviceInfo& unit) { unit.setMediaList(titles("aXYdZ")); });
    EXPECT_EQ(shadow.takeChanges(), QStringList({"1-2:0", "4-4:0"}));
    refresh([](DeviceInfo& unit) { unit.setMediaTitle("another field"); });
    EXPECT_EQ(shadow.takeChanges(), QStringList());
    manager->selectDevice(1);
    EXPECT_EQ(shadow.takeChanges(), QStringList({"-0-4", "+0-4"})) << "however alike the units are";
    refresh([](DeviceInfo& unit) { unit.setMediaList(nullptr); });
    EXPECT_EQ(shadow.takeChanges(), QStringList({"-0-4"}));
    EXPECT_FALSE(model.data(model.index(0), MediaListModel::TitleRole).isValid());
}

TEST_F(MediaListModelTest, FollowsAnySequenceOfLists) {
    manager->selectDevice(0);
    std::mt19937 random(7); // NOLINT(bugprone-random-generator-seed): the same lists every time
    for (int step = 0; step < 300; ++step) {
        QString letters;
        for (unsigned left = random() % 12; left > 0; --left) {
            letters += QChar('a' + static_cast<int>(random() % 3));
        }
        refresh([&](DeviceInfo& unit) { unit.setMediaList(titles(letters)); });
        ASSERT_TRUE(shadow.isTrue()) << step;
        ASSERT_EQ(model.rowCount(), letters.size());
    }
}

TEST_F(MediaListModelTest, TheSortedAndSearchedListFollowsAnySequenceOfLists) {
    MediaListProxy proxy;
    proxy.setSourceModel(&model);
    proxy.setSortPasses({{MediaListModel::TitleRole, Qt::DescendingOrder}});
    const QAbstractItemModelTester proxyTester(&proxy, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const Shadow proxyShadow(proxy);
    manager->selectDevice(0);
    std::mt19937 random(11); // NOLINT(bugprone-random-generator-seed): the same lists every time
    const char* const filters[] = {"", "a", "^[BC]$", "z", "("};
    for (int step = 0; step < 300; ++step) {
        QString letters;
        for (unsigned left = random() % 12; left > 0; --left) {
            letters += QChar("aBcz"[random() % 4]);
        }
        if (step % 3 == 0) {
            proxy.setFilter(MediaListModel::TitleRole, filters[random() % 5]);
        }
        refresh([&](DeviceInfo& unit) { unit.setMediaList(titles(letters)); });
        QCoreApplication::processEvents();
        ASSERT_TRUE(proxyShadow.isTrue()) << step;
        for (int row = 1; row < proxy.rowCount(); ++row) {
            ASSERT_GE(proxyShadow.value(row - 1, 256)
                          .toString()
                          .compare(proxyShadow.value(row, 256).toString(), Qt::CaseInsensitive),
                      0);
        }
        proxy.setFilter(MediaListModel::TitleRole, "");
        ASSERT_EQ(proxy.rowCount(), letters.size());
    }
    proxy.setFilter(MediaListModel::TitleRole, "(");
    EXPECT_EQ(proxy.rowCount(), 0) << "no expression";
}

} // namespace
} // namespace orvex::Test
