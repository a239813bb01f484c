#include "device/DeviceInfo.h"

#include "device/DeviceField.h"

#include <orvex/Messaging/Discovered.h>

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>

namespace orvex {
namespace {

constexpr int reserved[] = {4, 17, 18};

Messaging::Discovered::Values announcedValues() {
    Messaging::Discovered::Values values;
    values.name = "Zo\xC3\xAB";
    values.address = "127.0.0.9";
    values.serial = "K-1";
    values.uid = "abc";
    values.productVendor = "Orvex";
    values.productName = "KELM";
    values.productModel = "K2";
    values.localAddress = true;
    values.port = 12740;
    values.encrypted = true;
    return values;
}

/// Gives every field that a unit answers for a value that is not its default.
void fill(DeviceInfo& unit) {
    unit.setName("New");
    unit.setSoftwareVersion("1");
    unit.setLibraryUpdateTime(QDateTime(QDate(2025, 1, 2), QTime(3, 4), Qt::UTC));
    unit.setContentUpdateState(
        QSharedPointer<ContentUpdateState>::create(ContentUpdateState{20, "", "0", "", 0, "", ""}));
    unit.setNetworkStatus(
        QSharedPointer<NetworkStatus>::create(NetworkStatus{true, true, true, false, "A", {}}));
    unit.setAdaptiveGamingSelectedProfile(
        QSharedPointer<AdaptiveGamingSelectedProfile>::create(AdaptiveGamingSelectedProfile{"p", "n", 1, 2}));
    unit.setSoftwareHealthStatus(
        QSharedPointer<SoftwareHealthStatus>::create(SoftwareHealthStatus{1, "kim", {{}}}));
    unit.setWiFiPoints({{"A", true}});
    unit.setWiFiSetupResult(true);
    unit.setCaptureDevices({std::make_shared<CaptureDevice>()});
    unit.setAdaptiveAudioParameters(1);
    unit.setAutomaticVolumeControl(false);
    unit.setCaptureVolume({1, 2, 3, 4, 5});
    unit.setExperienceModes({{1}, 1, "Off", 1, "x"});
    unit.setMotionCodeStatus({3, "x"});
    unit.setAudioSourceStatus({3, "x"});
    unit.setMediaTitle("Film");
    unit.setMediaProgress(1, 2);
    unit.setMotionDelay(1);
    unit.setRecognitionTolerance(1);
    unit.setSeats({std::make_shared<SeatInfo>()});
    auto list = QSharedPointer<MediaList>::create();
    list->media.append(MediaEntry{"t", "", "", "", "", "", ""});
    unit.setMediaList(list);
    auto detailed = QSharedPointer<DetailedStatusInfo>::create();
    detailed->modules.push_back(std::make_shared<ModuleInfo>());
    unit.setDetailedStatusInfo(detailed);
}

void expectDefaults(const DeviceInfo& unit) {
    EXPECT_FALSE(unit.isContacted());
    EXPECT_EQ(unit.softwareVersion(), QString());
    EXPECT_FALSE(unit.libraryUpdateTime().isValid());
    EXPECT_TRUE(unit.contentUpdateState() == (ContentUpdateState{10, "", "0", "", 0, "", ""}));
    EXPECT_FALSE(unit.networkStatus());
    EXPECT_TRUE(unit.adaptiveGamingSelectedProfile() == AdaptiveGamingSelectedProfile());
    EXPECT_TRUE(unit.softwareHealthStatus() == (SoftwareHealthStatus{-1, "", {}}));
    EXPECT_TRUE(unit.wiFiPoints().isEmpty());
    EXPECT_FALSE(unit.wiFiSetupResult());
    EXPECT_TRUE(unit.captureDevices().empty());
    EXPECT_EQ(unit.adaptiveAudioParameters(), 0);
    EXPECT_TRUE(unit.automaticVolumeControl());
    EXPECT_TRUE(unit.captureVolume() == (CaptureVolumeState{0, 0, 1, -20, 20}));
    EXPECT_TRUE(unit.experienceModes() == (ExperienceModesState{{}, 0, "On", 0, "Ok"}));
    EXPECT_TRUE((unit.motionCodeStatus() == ServiceStatus::Value{0, ""}));
    EXPECT_TRUE((unit.audioSourceStatus() == ServiceStatus::Value{0, ""}));
    EXPECT_EQ(unit.mediaTitle(), QString());
    EXPECT_EQ(unit.mediaOffset(), -1);
    EXPECT_EQ(unit.mediaDuration(), -1);
    EXPECT_EQ(unit.motionDelay(), 0);
    EXPECT_EQ(unit.recognitionTolerance(), 0);
    EXPECT_TRUE(unit.seats().empty());
    EXPECT_FALSE(unit.mediaList());
    EXPECT_FALSE(unit.detailedStatusInfo());
}

class DeviceInfoTest : public testing::Test {
protected:
    static DeviceField::Set bits(std::initializer_list<int> fields) {
        return DeviceField::Set(DeviceField::mask(fields));
    }

    /// What a unit can answer for by a value.
    static DeviceField::Set answerable() {
        DeviceField::Set set(DeviceField::all);
        set.reset(DeviceField::Online);
        set.reset(DeviceField::Contacted);
        for (const int field : reserved) {
            set.reset(static_cast<std::size_t>(field));
        }
        return set;
    }

    DeviceInfo unit{Messaging::Discovered(announcedValues())};
};

TEST_F(DeviceInfoTest, ANewUnitKnowsWhatItAnnouncedAndNothingElse) {
    EXPECT_EQ(unit.name(), QString::fromUtf8("Zoë"));
    EXPECT_EQ(unit.address(), QLatin1String("127.0.0.9"));
    EXPECT_EQ(unit.port(), 12740);
    EXPECT_EQ(unit.uid(), QLatin1String("abc"));
    EXPECT_EQ(unit.productName(), QLatin1String("KELM"));
    EXPECT_TRUE(unit.isEncrypted() && unit.isLocalAddress() && unit.isOnline());
    expectDefaults(unit);
    EXPECT_EQ(unit.validFields(), bits({0, 1, 2}));
    EXPECT_TRUE(unit.changedFields().none());
    EXPECT_TRUE(unit.answeredFields().none());
}

TEST_F(DeviceInfoTest, AFirstAnswerIsAChangeAndARepeatedOneIsNone) {
    fill(unit);
    EXPECT_EQ(unit.changedFields(), answerable());
    EXPECT_EQ(unit.answeredFields(), answerable());
    EXPECT_EQ(unit.validFields(), answerable() | bits({0, 1}));
    unit.clearChangedFields();
    unit.clearAnsweredFields();
    fill(unit);
    EXPECT_TRUE(unit.changedFields().none()) << "the same values in new records";
    EXPECT_EQ(unit.answeredFields(), answerable());
}

TEST_F(DeviceInfoTest, AFirstAnswerIsAChangeAlsoWhenItIsTheDefault) {
    unit.setMotionDelay(0);
    unit.setMediaList(nullptr);
    unit.setContentUpdateState(nullptr);
    EXPECT_EQ(unit.changedFields(),
              bits({DeviceField::MotionDelay, DeviceField::MediaList, DeviceField::ContentUpdate}));
    EXPECT_TRUE(unit.isFieldValid(DeviceField::MediaList)) << "an answer without data is an answer";
    unit.clearChangedFields();
    unit.setMotionDelay(5);
    EXPECT_EQ(unit.changedFields(), bits({DeviceField::MotionDelay}));
}

TEST_F(DeviceInfoTest, AnEmptyRecordReplacesWhatWasThere) {
    fill(unit);
    unit.setContentUpdateState(nullptr);
    unit.setNetworkStatus(nullptr);
    unit.setSoftwareHealthStatus(nullptr);
    EXPECT_EQ(unit.contentUpdateState().stateId, 10);
    EXPECT_FALSE(unit.networkStatus());
    EXPECT_EQ(unit.softwareHealthStatus().overallState, -1);
}

TEST_F(DeviceInfoTest, GoingOfflineForgetsWhatWasReadAndChangesEverything) {
    fill(unit);
    unit.setContacted(true);
    unit.incrementFailureCount();
    unit.setOnline(false);
    EXPECT_FALSE(unit.isOnline());
    expectDefaults(unit);
    EXPECT_EQ(unit.name(), QLatin1String("New"));
    EXPECT_EQ(unit.failureCount(), 1);
    EXPECT_EQ(unit.validFields(), bits({0, 1, 2}));
    EXPECT_TRUE(unit.changedFields().all());
    unit.clearChangedFields();
    unit.setOnline(false);
    EXPECT_TRUE(unit.changedFields().all()) << "also again: nobody may have heard the first time";
    unit.clearChangedFields();
    unit.setOnline(true);
    EXPECT_EQ(unit.changedFields(), bits({DeviceField::Online}));
    unit.clearChangedFields();
    unit.setOnline(true);
    unit.setContacted(false);
    EXPECT_TRUE(unit.changedFields().none());
    unit.setContacted(true);
    EXPECT_EQ(unit.changedFields(), bits({DeviceField::Contacted}));
}

TEST_F(DeviceInfoTest, AnyAnswerResetsTheFailuresAndABulkClearDoesNot) {
    const auto failuresAfter = [this](auto step) {
        unit.incrementFailureCount();
        step();
        return unit.failureCount();
    };
    EXPECT_EQ(failuresAfter([&] { unit.clearAnsweredFields(); }), 1);
    EXPECT_EQ(failuresAfter([&] { unit.clearChangedFields(); }), 2);
    EXPECT_EQ(failuresAfter([&] { unit.setMotionDelay(0); }), 0);
    EXPECT_EQ(failuresAfter([&] { unit.setMediaList(nullptr); }), 0);
    EXPECT_EQ(failuresAfter([&] { unit.setFieldAnswered(DeviceField::Seats, false); }), 0);
    EXPECT_EQ(failuresAfter([&] { unit.setFieldValid(DeviceField::Seats, true); }), 1);
}

TEST_F(DeviceInfoTest, FieldsAreMarkedOneByOne) {
    unit.setFieldValid(DeviceField::WiFiSetupResult, true);
    EXPECT_EQ(unit.changedFields(), bits({DeviceField::WiFiSetupResult}));
    unit.setFieldChanged(DeviceField::WiFiSetupResult, false);
    unit.setFieldValid(DeviceField::WiFiSetupResult, true);
    unit.setFieldValid(DeviceField::WiFiSetupResult, false);
    EXPECT_TRUE(unit.changedFields().none());
    EXPECT_FALSE(unit.isFieldValid(DeviceField::WiFiSetupResult));
    unit.setFieldValid(DeviceField::Name, false);
    EXPECT_TRUE(unit.isFieldValid(DeviceField::Name)) << "it comes with the announcement";
    unit.setFieldAnswered(DeviceField::Seats, true);
    EXPECT_EQ(unit.answeredFields(), bits({DeviceField::Seats}));
}

TEST_F(DeviceInfoTest, AFieldThatDoesNotExistIsAnError) {
    for (const int field : {-1, 28, 1000}) {
        EXPECT_THROW(unit.isFieldValid(field), std::out_of_range);
        EXPECT_THROW(unit.setFieldValid(field, true), std::out_of_range);
        EXPECT_THROW(unit.setFieldChanged(field, true), std::out_of_range);
        EXPECT_THROW(unit.setFieldAnswered(field, true), std::out_of_range);
    }
    EXPECT_NO_THROW(unit.setFieldChanged(27, true));
}

TEST_F(DeviceInfoTest, IsOneUnitByUidAddressAndPort) {
    const auto differs = [this](auto change) {
        auto values = announcedValues();
        change(values);
        return !unit.isSameUnit(DeviceInfo(Messaging::Discovered(values)));
    };
    EXPECT_FALSE(differs([](auto& values) { values.name = "Other"; }));
    EXPECT_TRUE(differs([](auto& values) { values.uid = "abd"; }));
    EXPECT_TRUE(differs([](auto& values) { values.address = "127.0.0.90"; }));
    EXPECT_TRUE(differs([](auto& values) { values.port = 1; }));

    auto values = announcedValues();
    values.address = "127.0.0.10";
    values.port = 7;
    const DeviceInfo moved{Messaging::Discovered(values)};
    unit.moveTo(moved);
    EXPECT_TRUE(unit.isSameUnit(moved));
    unit.moveTo(unit);
    EXPECT_TRUE(unit.isSameUnit(moved));
}

TEST_F(DeviceInfoTest, IsReadWholeWhileItIsWritten) {
    std::atomic<bool> writing{true};
    std::thread writer([&] {
        for (int round = 0; round < 500; ++round) {
            unit.setCaptureVolume({round, round, round, round, round});
            unit.setMediaProgress(round, round);
            unit.setOnline(round % 2 == 0);
        }
        writing = false;
    });
    while (writing) {
        const auto volume = unit.captureVolume();
        EXPECT_TRUE(volume == CaptureVolumeState() ||
                    (volume.volume == volume.min && volume.min == volume.max && volume.step == volume.max));
        unit.setMediaTitle(unit.mediaTitle() + QLatin1Char('x'));
    }
    writer.join();
}

} // namespace
} // namespace orvex
