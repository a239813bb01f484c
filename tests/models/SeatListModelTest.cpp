#include "models/SeatListModel.h"

#include "tests/device/SelectedUnitFixture.h"
#include "tests/models/Shadow.h"

namespace orvex::Test {
namespace {

SeatStatusList seats(std::initializer_list<SeatInfo> values) {
    SeatStatusList list;
    for (const SeatInfo& value : values) {
        list.push_back(std::make_shared<SeatInfo>(value));
    }
    return list;
}

SeatInfo seat(int index, double motion = 0, double vibration = 0, bool chained = false) {
    SeatInfo made;
    made.index = index;
    made.hasIndex = true;
    made.motion = motion;
    made.vibration = vibration;
    made.chained = chained;
    return made;
}

class SeatListModelTest : public SelectedUnitFixture {
protected:
    SeatListModelTest() { model.setDeviceInfoManager(manager); }

    bool set(int row, int role, const QVariant& value) {
        return model.setData(model.index(row), value, role);
    }
    double level(int row, int role) const { return shadow.value(row, role).toDouble(); }

    SeatListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    Shadow shadow{model};
};

TEST_F(SeatListModelTest, TellsOnlyWhatDiffersInOneUnitAndEverythingOfAnother) {
    first->setSeats(seats({seat(1), seat(2, -3), seat(3)}));
    second->setSeats(seats({seat(1), seat(2, -3), seat(3)}));
    manager->selectDevice(0);
    EXPECT_EQ(shadow.takeChanges(), QStringList({"+0-2"}));
    refresh([](DeviceInfo& unit) { unit.setSeats(seats({seat(1), seat(2, -3), seat(3)})); });
    EXPECT_EQ(shadow.takeChanges(), QStringList());
    refresh([](DeviceInfo& unit) { unit.setSeats(seats({seat(1, -1), seat(2, -4), seat(3), seat(4)})); });
    EXPECT_EQ(shadow.takeChanges(), QStringList({"0-0:0", "1-1:0", "+3-3"}));
    refresh([](DeviceInfo& unit) { unit.setSeats(seats({seat(2)})); });
    EXPECT_EQ(shadow.takeChanges(), QStringList({"0-0:0", "-1-3"}));
    manager->selectDevice(1);
    EXPECT_EQ(shadow.takeChanges(), QStringList({"-0-0", "+0-2"}));
    manager->activateDeviceList();
    EXPECT_EQ(shadow.takeChanges(), QStringList({"-0-2"}));
    EXPECT_TRUE(shadow.isTrue());
}

TEST_F(SeatListModelTest, MovesTheChainedPartnerByTheSameAmountWithinItsBounds) {
    first->setSeats(seats({seat(1, -5, -10, true), seat(2, -5, -10)}));
    manager->selectDevice(0);
    shadow.takeChanges();
    const SeatStatusList handedOn = first->seats();

    EXPECT_TRUE(set(0, SeatListModel::MotionRole, -12.0));
    EXPECT_EQ(level(0, SeatListModel::VibrationRole), -17);
    EXPECT_TRUE(set(0, SeatListModel::MotionRole, 10.0)) << "the clamp is for the partner only";
    EXPECT_EQ(level(0, SeatListModel::MotionRole), 10);
    EXPECT_EQ(level(0, SeatListModel::VibrationRole), 0);
    EXPECT_TRUE(set(0, SeatListModel::VibrationRole, -40.0));
    EXPECT_EQ(level(0, SeatListModel::MotionRole), -20);
    EXPECT_TRUE(set(1, SeatListModel::MotionRole, -6.0));
    EXPECT_EQ(level(1, SeatListModel::VibrationRole), -10) << "not chained";
    EXPECT_EQ(shadow.takeChanges(), QStringList({"0-0:2", "0-0:2", "0-0:2", "1-1:1"}));

    EXPECT_FALSE(set(1, SeatListModel::MotionRole, -6.0)) << "nothing new";
    EXPECT_FALSE(set(1, SeatListModel::MutedRole, false));
    EXPECT_FALSE(set(1, SeatListModel::MotionRole, QStringLiteral("much")));
    EXPECT_FALSE(set(1, SeatListModel::MotionRole, qQNaN()));
    EXPECT_FALSE(set(1, SeatListModel::StatusTextRole, QStringLiteral("x")));
    EXPECT_FALSE(set(2, SeatListModel::MotionRole, -1.0));
    EXPECT_EQ(shadow.takeChanges(), QStringList());
    EXPECT_EQ(handedOn[0]->motion, -5) << "a record that was handed on is never written";
    EXPECT_EQ(first->seats()[0]->vibration, -40) << "the unit holds what the user has set";
}

TEST_F(SeatListModelTest, AnOlderAnswerDoesNotUndoAnEditThatWaitsToBeSent) {
    first->setSeats(seats({seat(1, -5), seat(2, -5)}));
    manager->selectDevice(0);
    EXPECT_TRUE(set(0, SeatListModel::MotionRole, -1.0));
    refresh([](DeviceInfo& unit) {
        SeatInfo faulty = seat(1, -5);
        faulty.statusCode = QStringLiteral("101");
        unit.setSeats(seats({faulty, seat(2, -9)}));
    });
    EXPECT_EQ(level(0, SeatListModel::MotionRole), -1);
    EXPECT_NE(shadow.value(0, SeatListModel::StatusTypeRole), QVariant(3))
        << "its state is news all the same";
    EXPECT_EQ(level(1, SeatListModel::MotionRole), -9);
    EXPECT_TRUE(set(0, SeatListModel::MutedRole, true));
    EXPECT_EQ(first->seats()[0]->motion, -1) << "the second edit goes on from the first";
    EXPECT_TRUE(shadow.isTrue());
}

} // namespace
} // namespace orvex::Test
