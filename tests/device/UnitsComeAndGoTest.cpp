#include "tests/device/ManagerFixture.h"

#include <algorithm>
#include <deque>

namespace orvex::Test {
namespace {

/// Units that come, are renamed, move and go, as the list shows them.
class UnitsComeAndGoTest : public TimedManagerFixture {
protected:
    QStringList sortedNames() const {
        QStringList sorted = names();
        sorted.sort(Qt::CaseInsensitive);
        return sorted;
    }

    bool areUnique() const {
        QSet<QString> uids;
        for (int row = 0; row < manager->deviceCount(); ++row) {
            uids.insert(manager->deviceAt(row)->uid());
        }
        return uids.size() == manager->deviceCount();
    }
};

TEST_F(UnitsComeAndGoTest, FiftyComeAreRenamedMoveAndVanish) {
    std::deque<RunningUnit> units;
    for (int number = 0; number < 50; ++number) {
        units.emplace_back(host,
                           (number % 2 == 0 ? "unit " : "UNIT ") + std::to_string(number * 37 % 50 + 100));
        announce(units.back());
    }
    ASSERT_TRUE(inTime([&] { return manager->deviceCount() == 50 && areAllKnown(); }));
    EXPECT_EQ(names(), sortedNames());
    EXPECT_TRUE(areUnique());

    const QStringList before = names();
    units[7].rename("A new name");
    ASSERT_TRUE(inTime([&] { return names().contains("A new name"); }));
    EXPECT_EQ(names().indexOf("A new name"),
              before.indexOf(QString::fromStdString("UNIT " + std::to_string(7 * 37 % 50 + 100))))
        << "a renamed unit keeps its place";
    manager->activateDeviceList();
    EXPECT_EQ(manager->deviceCount(), 50);

    for (int number = 0; number < 50; number += 13) {
        units[static_cast<std::size_t>(number)].stop();
    }
    EXPECT_TRUE(comes([&] { return manager->deviceCount() == 46; }, 200));
    for (const QVariantList& gone : removed) {
        EXPECT_EQ(gone[0], gone[1]) << "one row each";
    }
    units[13].start();
    announce(units[13]);
    ASSERT_TRUE(comes([&] { return manager->deviceCount() == 47 && areAllKnown(); }));
    EXPECT_TRUE(areUnique());
    EXPECT_EQ(added.size(), 51);
    EXPECT_EQ(removed.size(), 4);
}

TEST_F(UnitsComeAndGoTest, AUnitThatMovedIsListedAgainWhereItIsNow) {
    RunningUnit unit(host, "Mover");
    announce(unit);
    ASSERT_TRUE(inTime([&] { return areAllKnown(); }));
    auto elsewhere = unit.announced();
    unit.stop();
    EXPECT_TRUE(comes([&] { return manager->deviceCount() == 0; }));
    unit.changeState([](Simulator::UnitState& state) { state.network.address = RunningUnit::freeAddress(); });
    unit.start();
    elsewhere.address = unit.address();
    messenger->getDiscoverer()->clearDiscovered();
    announce(elsewhere);
    ASSERT_TRUE(comes([&] { return areAllKnown(); }));
    EXPECT_EQ(manager->deviceAt(0)->address().toStdString(), elsewhere.address);
}

TEST_F(UnitsComeAndGoTest, UnitsThatLookAlikeAreNeverTakenForEachOther) {
    UnitOptions options;
    options.address = "127.0.0.2";
    RunningUnit two(host, "Twin", options);
    options.address = "127.0.0.20";
    RunningUnit twenty(host, "Twin", options);
    two.changeState([](Simulator::UnitState& state) { state.content.id = 36; });
    announce(two);
    announce(twenty);
    auto impostor = twenty.announced();
    impostor.uid = two.uid();
    impostor.name = "Impostor";
    ASSERT_TRUE(inTime([&] { return manager->deviceCount() == 2 && areAllKnown(); }));
    EXPECT_EQ(names(), QStringList({"Twin", "Twin"}));
    for (int row = 0; row < 2; ++row) {
        const auto unit = manager->deviceAt(row);
        EXPECT_EQ(unit->contentUpdateState().stateId, unit->uid().toStdString() == two.uid() ? 36 : 10);
    }

    // Somebody claims the key of a unit that is gone: its row may come, an answer of the other's never does.
    two.stop();
    ASSERT_TRUE(comes([&] { return manager->deviceCount() == 1; }));
    messenger->getDiscoverer()->clearDiscovered();
    announce(impostor);
    ASSERT_TRUE(comes([&] { return manager->deviceCount() == 2; }));
    const auto claimed = manager->deviceAt(0);
    ASSERT_EQ(claimed->name(), QLatin1String("Impostor"));
    EXPECT_TRUE(comes([&] { return manager->deviceCount() == 1; })) << "it never answers with that key";
    EXPECT_EQ(claimed->networkStatus(), nullptr);
    EXPECT_EQ(names(), QStringList({"Twin"}));
}

} // namespace
} // namespace orvex::Test
