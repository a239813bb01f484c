#include "models/DeviceListModel.h"

#include "tests/device/ManagerFixture.h"
#include "tests/models/Shadow.h"

#include <QAbstractItemModelTester>

namespace orvex::Test {
namespace {

class DeviceListModelTest : public ManagerFixture {
protected:
    void show() { model.setDeviceInfoManager(manager); }

    QVariant value(int row, const char* role) const {
        return model.data(model.index(row), model.roleNames().key(role, -1));
    }

    DeviceListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    Shadow shadow{model};
    QSignalSpy selection{&model, &DeviceListModel::automaticDeviceSelect};
};

TEST_F(DeviceListModelTest, IsEmptyBeforeItHasAManager) {
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_FALSE(model.data(model.index(0), DeviceListModel::NameRole).isValid());
    const QHash<int, QByteArray> expected = {{256, "name"},
                                             {257, "productName"},
                                             {258, "serial"},
                                             {259, "uid"},
                                             {260, "address"},
                                             {261, "localAddress"},
                                             {262, "port"},
                                             {263, "encrypted"},
                                             {267, "contentUpdateStateText"},
                                             {268, "contentUpdateState2ndText"},
                                             {269, "netStatus"},
                                             {270, "hotspotActive"}};
    EXPECT_EQ(model.roleNames(), expected);
}

TEST_F(DeviceListModelTest, ShowsWhatIsKnownOfEachUnit) {
    show();
    UnitOptions options;
    options.product = "ruvello";
    options.accessPoint = true;
    RunningUnit unit(host, "A", options);
    announce(unit);
    ASSERT_TRUE(eventually([&] { return model.rowCount() == 1; }));
    EXPECT_EQ(value(0, "name"), QStringLiteral("A"));
    EXPECT_EQ(value(0, "productName"), QStringLiteral("Ruvello"));
    EXPECT_EQ(value(0, "serial").toString().toStdString(), unit.options().serial);
    EXPECT_EQ(value(0, "uid").toString().toStdString(), unit.uid());
    EXPECT_EQ(value(0, "address").toString().toStdString(), unit.options().address);
    EXPECT_EQ(value(0, "localAddress"), QVariant(false));
    EXPECT_EQ(value(0, "port"), QVariant(int{unit.port()}));
    EXPECT_EQ(value(0, "encrypted"), QVariant(true));
    unit.changeState([](Simulator::UnitState& state) {
        state.content.id = 35;
        state.content.code = "3502";
    });
    ASSERT_TRUE(eventually([&] { return shadow.value(0, DeviceListModel::HotspotActiveRole).toBool(); }));
    EXPECT_EQ(value(0, "netStatus"), QStringLiteral("owH '' 3"));
    EXPECT_TRUE(eventually([&] {
        return shadow.value(0, DeviceListModel::ContentUpdateStateTextRole) ==
                   QStringLiteral("Error downloading content") &&
               shadow.value(0, DeviceListModel::ContentUpdateState2ndTextRole) ==
                   QStringLiteral("Code: 3502");
    }));
    EXPECT_FALSE(model.data(model.index(0), Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.data(model.index(0), 264).isValid());
    EXPECT_FALSE(model.data(model.index(1), DeviceListModel::NameRole).isValid());
    EXPECT_EQ(model.rowCount(model.index(0)), 0) << "a list, no tree";
}

TEST_F(DeviceListModelTest, TellsViewsOfEveryChange) {
    announce(absent("early", "Early"));
    ASSERT_TRUE(eventually([&] { return manager->deviceCount() == 1; }));
    show();
    EXPECT_TRUE(shadow.isTrue());
    EXPECT_EQ(model.rowCount(), 1) << "units that were there before the model";
    EXPECT_EQ(value(0, "netStatus"), QStringLiteral("not valid"));
    EXPECT_EQ(value(0, "hotspotActive"), QVariant(false));
    EXPECT_EQ(value(0, "contentUpdateStateText"), QString());
    manager->selectDevice(0);
    manager->deviceAt(0)->setOnline(false);
    manager->activateDeviceList();
    EXPECT_EQ(model.rowCount(), 0);

    RunningUnit units[] = {RunningUnit(host, "C"), RunningUnit(host, "A"), RunningUnit(host, "B")};
    for (const RunningUnit& unit : units) {
        announce(unit);
    }
    ASSERT_TRUE(eventually([&] { return model.rowCount() == 3 && areAllKnown(); }));
    EXPECT_TRUE(eventually([&] { return shadow.isTrue(); }));
    units[0].rename("Renamed");
    ASSERT_TRUE(
        eventually([&] { return shadow.value(2, DeviceListModel::NameRole) == QStringLiteral("Renamed"); }));
    units[2].fail(AnswerFault::Close);
    ASSERT_TRUE(eventually([&] { return model.rowCount() == 2; }));
    EXPECT_TRUE(eventually([&] { return shadow.isTrue(); }));
    EXPECT_EQ(shadow.value(1, DeviceListModel::NameRole), QStringLiteral("Renamed"));
    EXPECT_TRUE(selection.isEmpty()) << "there were three units to choose from";
}

TEST_F(DeviceListModelTest, SelectsTheOnlyUnitWithItsSecondUpdateAndNeverAgain) {
    show();
    const RunningUnit unit(host, "A");
    announce(unit);
    ASSERT_TRUE(eventually([&] { return updated.size() == 1; }));
    EXPECT_TRUE(selection.isEmpty());
    ASSERT_TRUE(eventually([&] { return updated.size() >= 2; }));
    EXPECT_EQ(selection.size(), 1);
    ASSERT_TRUE(eventually([&] { return updated.size() >= 3; }));
    EXPECT_EQ(selection.size(), 1);
}

TEST_F(DeviceListModelTest, LeavesAUnitThatMustBeSetUpAlone) {
    show();
    UnitOptions options;
    options.accessPoint = true;
    RunningUnit unit(host, "A", options);
    announce(unit);
    ASSERT_TRUE(eventually([&] { return updated.size() >= 2; }));
    unit.changeState([](Simulator::UnitState& state) { state.network.hotspotActive = false; });
    ASSERT_TRUE(eventually([&] { return !shadow.value(0, DeviceListModel::HotspotActiveRole).toBool(); }));
    EXPECT_TRUE(selection.isEmpty()) << "that was decided with the second update";
}

TEST_F(DeviceListModelTest, LeavesTheChoiceBetweenTwoUnitsToThePerson) {
    show();
    const RunningUnit units[] = {RunningUnit(host, "A"), RunningUnit(host, "B")};
    announce(units[0]);
    announce(units[1]);
    ASSERT_TRUE(eventually([&] { return updated.size() >= 3; }));
    EXPECT_TRUE(selection.isEmpty());
}

} // namespace
} // namespace orvex::Test
