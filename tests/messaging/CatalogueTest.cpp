#include "messaging/senders/SetMotionDelayNotificationSender.h"
#include "messaging/senders/SetSeatSettingSender.h"
#include "tests/messaging/CommunicatorFixture.h"
#include "velto/wire/Envelope.h"

#include <cmath>
#include <limits>
#include <mutex>

namespace orvex::Test {
namespace {

/// A unit hears everything that the program can say.
class CatalogueTest : public CommunicatorFixture {
public:
    ~CatalogueTest() override { unit.setFrameListener(nullptr); }

protected:
    CatalogueTest() {
        unit.fail(AnswerFault::Drop);
        unit.setFrameListener([this](std::string_view frame) {
            const std::lock_guard lock(m_mutex);
            Velto::Wire::DecodedFrame decoded;
            if (Velto::Wire::decodeFrame(frame, decoded) != Velto::Wire::FrameError::None ||
                decoded.header.kind != Velto::Wire::Kind::Request || decoded.header.number != 1) {
                m_heard.emplace_back("no proper request");
                return;
            }
            m_heard.push_back(decoded.header.type + " '" + decoded.header.text + "' " +
                              std::string(decoded.body));
        });
    }
    std::vector<std::string> heard() {
        const std::lock_guard lock(m_mutex);
        return m_heard;
    }

    /// What the unit hears of one request.
    std::vector<std::string> heardOf(std::uint32_t fields, std::shared_ptr<DeviceUpdateRequest> update = {}) {
        {
            const std::lock_guard lock(m_mutex);
            m_heard.clear();
        }
        // The content update state is asked for last: whatever was sent before it has arrived with it.
        communicator->startRequest(device, fields | mask({DeviceField::ContentUpdate}), std::move(update),
                                   20000);
        EXPECT_TRUE(eventually([this] {
            const auto all = heard();
            return !all.empty() && all.back() == "GetContentUpdateState '1' ";
        }));
        communicator->cancelRequest();
        auto all = heard();
        if (!all.empty() && (fields & mask({DeviceField::ContentUpdate})) == 0) {
            all.pop_back();
        }
        return all;
    }

    /// One that stays, whatever network it is told to use.
    static UnitOptions staying() {
        UnitOptions options;
        options.state = R"({"wifi":{"leaveTime":600000}})";
        return options;
    }

    RunningUnit unit{host, "Sofa", staying()};
    std::shared_ptr<DeviceInfo> device = unit.device();

private:
    std::mutex m_mutex;
    std::vector<std::string> m_heard;
};

using Lines = std::vector<std::string>;

TEST_F(CatalogueTest, EveryFieldIsAskedForOnceAndInOrder) {
    EXPECT_EQ(
        heardOf(DeviceField::all),
        Lines({"GetKelmName '1' ", "GetUpgrade '1' ", "GetUpdate '1' ", "GetNetworkState '1' ",
               "GetWifiList '1' ", "GetAdaptiveGamingSelectedProfile '1' ", "GetSoftwareHealthStatus '1' ",
               "GetCaptureDevices '1' ", "GetAdaptiveAudioParameters '1' ", "GetAutomaticVolumeControl '1' ",
               "GetCaptureVolume '1' ", "GetExperienceModes '1' ", "GetMediaStatus '1' ",
               "GetMotionDelay '1' ", "GetRecognitionTolerance '1' ", "GetSeatStatus '1' ",
               "GetMediaListNotification '1' ", "GetHapticSystemStatus '' ", "GetContentUpdateState '1' "}));
}

TEST_F(CatalogueTest, EachFieldAsksForItselfOnly) {
    const std::pair<int, const char*> fields[] = {
        {DeviceField::Name, "GetKelmName"},
        {DeviceField::SoftwareVersion, "GetUpgrade"},
        {DeviceField::LibraryUpdateTime, "GetUpdate"},
        {DeviceField::Network, "GetNetworkState"},
        {DeviceField::WiFiPoints, "GetWifiList"},
        {DeviceField::AdaptiveGamingProfile, "GetAdaptiveGamingSelectedProfile"},
        {DeviceField::SoftwareHealth, "GetSoftwareHealthStatus"},
        {DeviceField::CaptureDevices, "GetCaptureDevices"},
        {DeviceField::AdaptiveAudioParameters, "GetAdaptiveAudioParameters"},
        {DeviceField::AutomaticVolumeControl, "GetAutomaticVolumeControl"},
        {DeviceField::CaptureVolume, "GetCaptureVolume"},
        {DeviceField::ExperienceModes, "GetExperienceModes"},
        {DeviceField::MotionCodeStatus, "GetMediaStatus"},
        {DeviceField::AudioSourceStatus, "GetMediaStatus"},
        {DeviceField::MediaTitle, "GetMediaStatus"},
        {DeviceField::MediaProgress, "GetMediaStatus"},
        {DeviceField::MotionDelay, "GetMotionDelay"},
        {DeviceField::RecognitionTolerance, "GetRecognitionTolerance"},
        {DeviceField::Seats, "GetSeatStatus"},
        {DeviceField::MediaList, "GetMediaListNotification"}};
    for (const auto& [field, type] : fields) {
        EXPECT_EQ(heardOf(mask({field})), Lines({std::string(type) + " '1' "}));
    }
    EXPECT_EQ(heardOf(mask({DeviceField::DetailedStatus})), Lines({"GetHapticSystemStatus '' "}));
    EXPECT_EQ(
        heardOf(mask({DeviceField::Online, DeviceField::Contacted, DeviceField::WiFiSetupResult, 4, 17, 18})),
        Lines());
}

TEST_F(CatalogueTest, EverySettingIsSentByteForByte) {
    device->setCaptureVolume({42, 0, 1, -20, 20});
    const auto seat = std::make_shared<SeatInfo>(SeatInfo{-1, true, true, false, 3, -2.5, "0", "OK"});
    const auto title = QString::fromUtf8("Zoë \"Sofa\" \\ \t\x01/席");
    const std::pair<std::shared_ptr<DeviceUpdateRequest>, const char*> settings[] = {
        {std::make_shared<SetNameRequest>(title),
         R"(SetKelmName '' {"kelmName":"Zoë \"Sofa\" \\ \t\u0001/席"})"},
        {std::make_shared<SetNameRequest>(QString()), R"(SetKelmName '' {"kelmName":""})"},
        {std::make_shared<SetWiFiLoginRequest>("My \"net\"", " pass\\phrase "),
         R"(SetWifiSetting '' {"setWifi":{"ssid":"My \"net\"","key":" pass\\phrase "}})"},
        {std::make_shared<ActivateHotspotRequest>(), R"(SetWifiSetting '' {"setWifi":{"clear":true}})"},
        {std::make_shared<SetCaptureDeviceRequest>("{0.0.1}"),
         R"(SetCaptureDevicesMode '' {"identification":"{0.0.1}","mode":"manual"})"},
        {std::make_shared<SetAdaptiveAudioParametersRequest>(1),
         R"(SetAdaptiveAudioParameters '' {"preMixType":1})"},
        {std::make_shared<SetAutomaticVolumeControlRequest>(true),
         R"(SetAutomaticVolumeControl '' {"enable":true})"},
        {std::make_shared<SetAutomaticVolumeControlRequest>(false),
         R"(SetAutomaticVolumeControl '' {"enable":false})"},
        {std::make_shared<SetCaptureVolumeRequest>(-7, 41),
         R"(SetCaptureVolume '' {"volume":-7,"experienceModeId":42})"},
        {std::make_shared<SetExperienceModeRequest>(5), R"(SetExperienceMode '' {"experienceMode":5})"},
        {std::make_shared<SetMotionDelayRequest>(std::numeric_limits<int>::min()),
         R"(SetMotionDelay '' {"motionDelay":-2147483648})"},
        {std::make_shared<SetRecognitionToleranceRequest>(30),
         R"(SetRecognitionTolerance '' {"recognitionTolerance":30})"},
        {std::make_shared<SetSeatSettingRequest>(seat),
         R"(SetSeatSetting '' {"seat":{"index":-1,"muted":true,"chained":false,"motion":3.0,"vibration":-2.5}})"},
        {std::make_shared<SetContentUpdateRequest>(), "RequestContentUpdate '' "},
    };
    for (const auto& [update, line] : settings) {
        EXPECT_EQ(heardOf(0, update), Lines({line}));
    }
    EXPECT_EQ(heardOf(0, std::make_shared<DeviceUpdateRequest>(3)), Lines()) << "a reserved kind";
    EXPECT_EQ(heardOf(0, std::make_shared<SetSeatSettingRequest>(nullptr)), Lines());
}

TEST_F(CatalogueTest, AVolumeKeepsTheModeItWasSetInWhenTheRecordForgotIt) {
    device->setCaptureVolume({42, 0, 1, -20, 20});
    const auto update =
        std::make_shared<SetCaptureVolumeRequest>(-7, device->captureVolume().experienceModeId);
    device->setOnline(false);
    EXPECT_EQ(heardOf(0, update), Lines({R"(SetCaptureVolume '' {"volume":-7,"experienceModeId":42})"}));
}

TEST_F(CatalogueTest, ASettingGoesOutBeforeTheFieldsAreAskedForAgain) {
    EXPECT_EQ(heardOf(mask({DeviceField::Name}), std::make_shared<SetNameRequest>("A")),
              Lines({R"(SetKelmName '' {"kelmName":"A"})", "GetKelmName '1' "}));
}

TEST_F(CatalogueTest, ABodyBeyondTheBufferGoesOutWhole) {
    const QString name(5000, QLatin1Char('n'));
    EXPECT_EQ(heardOf(0, std::make_shared<SetNameRequest>(name)),
              Lines({"SetKelmName '' {\"kelmName\":\"" + name.toStdString() + "\"}"}));
    EXPECT_EQ(heardOf(0, std::make_shared<SetNameRequest>("n")),
              Lines({R"(SetKelmName '' {"kelmName":"n"})"}));
}

TEST_F(CatalogueTest, ALevelThatIsNoNumberIsLoggedAndNotSent) {
    for (const double level : {std::nan(""), std::numeric_limits<double>::infinity()}) {
        for (const auto field : {&SeatInfo::motion, &SeatInfo::vibration}) {
            auto seat = std::make_shared<SeatInfo>();
            (*seat).*field = level;
            EXPECT_EQ(heardOf(0, std::make_shared<SetSeatSettingRequest>(seat)), Lines());
        }
    }
    EXPECT_EQ(log.count("SetSeatSetting"), 4U);
}

TEST_F(CatalogueTest, ASenderIsNotBlockedByWhatWasDropped) {
    const auto unconnected = makeMessenger();
    Velto::Messaging::SetMotionDelayNotificationSender sender(unconnected.get());
    for (int delay = 0; delay < 3; ++delay) {
        sender.triggerSendMotionDelay(delay);
    }
    Velto::Messaging::SetMotionDelayNotificationSender detached(nullptr);
    detached.triggerSendMotionDelay(1);
}

} // namespace
} // namespace orvex::Test
