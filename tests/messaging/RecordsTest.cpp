#include "messaging/records/CaptureDevice.h"
#include "messaging/records/ContentEquals.h"
#include "messaging/records/ContentUpdateState.h"
#include "messaging/records/DetailedStatusInfo.h"
#include "messaging/records/MediaList.h"
#include "messaging/records/NetworkStatus.h"
#include "messaging/records/SeatInfo.h"
#include "messaging/records/SoftwareHealthStatus.h"

#include <gtest/gtest.h>

namespace orvex {
namespace {

TEST(SeatInfoTest, ShowsTheStateItsCodeStandsFor) {
    struct Case {
        const char* code;
        const char* text;
        int type;
    };
    for (const Case& c :
         {Case{"0", "System OK", 3}, Case{"10", "Fault in System", 1}, Case{"20", "System in Transition", 2},
          Case{"30", "No Power or Actuator Disconnected", 1}, Case{"40", "No Communication with System", 1},
          Case{"50", "Status: odd", 1}, Case{"", "Status: odd", 1}, Case{"0x0A", "Status: odd", 1}}) {
        SeatInfo seat;
        seat.statusCode = QString::fromLatin1(c.code);
        seat.statusText = QStringLiteral("odd");
        EXPECT_EQ(seat.displayText(), QLatin1String(c.text)) << c.code;
        EXPECT_EQ(seat.statusType(), c.type) << c.code;
    }
    EXPECT_EQ(SeatInfo().displayText(), QLatin1String("System OK"));
}

TEST(ContentUpdateStateTest, ShowsStateAndProgress) {
    struct Case {
        int stateId;
        int progressType;
        const char* stateName;
        const char* progressValue;
        const char* text;
    };
    const Case cases[] = {
        {10, 1, "idle", "50", ""},
        {20, 0, "", "50", "Checking for new content"},
        {25, 0, "", "", "Error checking for new content"},
        {30, 1, "x", "42", "Downloading content 42%"},
        {30, 1, "x", "0", "Downloading content..."},
        {30, 1, "x", "00", "Downloading content 00%"},
        {35, 2, "", "42", "Error downloading content"},
        {36, 0, "", "", "Server content not ready"},
        {40, 0, "", "", "Content install pending"},
        {50, 1, "", "%1", "Installing content %1%"},
        {55, 0, "", "", "Error installing content"},
        {99, 1, "Polishing", "7", "Polishing 7%"},
        {99, 1, "", "7", "Unknown state"},
    };
    for (const Case& c : cases) {
        ContentUpdateState state;
        state.stateId = c.stateId;
        state.stateName = QString::fromLatin1(c.stateName);
        state.progressType = c.progressType;
        state.progressValue = QString::fromLatin1(c.progressValue);
        EXPECT_EQ(state.stateText(), QLatin1String(c.text)) << c.stateId;
    }
}

TEST(ContentUpdateStateTest, ShowsEveryCodeButZero) {
    ContentUpdateState state;
    EXPECT_EQ(state.codeText(), QString());
    for (const char* code : {"12", "00", ""}) {
        state.code = QString::fromLatin1(code);
        EXPECT_EQ(state.codeText(), QStringLiteral("Code: ") + state.code);
    }
}

TEST(NetworkStatusTest, RendersFlagsNetworkAndInterfaces) {
    NetworkStatus status;
    status.online = true;
    status.ssid = QStringLiteral("Home");
    EXPECT_EQ(status.toString(), QLatin1String("not valid"));
    status.valid = true;
    EXPECT_EQ(status.toString(), QLatin1String("Owh 'Home' 0"));
    status = {true, false, true, true, QString(), {}};
    NetworkInterfaceInfo wifi;
    wifi.interfaceName = QStringLiteral("Wi-Fi");
    wifi.ip = QStringLiteral("10.0.0.2");
    wifi.hardwareAddress = QStringLiteral("02:00");
    wifi.netmask = QStringLiteral("255.0.0.0");
    wifi.broadcast = QStringLiteral("10.255.255.255");
    wifi.active = true;
    status.interfaces = {wifi, {}};
    EXPECT_EQ(status.toString(), QLatin1String("oWH '' 2"));
    EXPECT_EQ(status.toString(NetworkStatus::Rendering::Verbose),
              QLatin1String("oWH '' 2\n"
                            "{name:Wi-Fi, ip:10.0.0.2, mac:02:00, broadcast:10.255.255.255, active}\n"
                            "{name:, ip:, mac:, broadcast:, inactive}"));
}

TEST(NetworkStatusTest, JudgesAnInterfaceByItsExactNameAndTheFlags) {
    struct Case {
        const char* name;
        int type;
        bool online, wifiOnline, hotspotActive, active;
    };
    const Case cases[] = {
        {"Access Point", 0, true, true, false, false},
        {"Access Point", 0, false, false, true, true},
        {"Ethernet", 1, true, false, false, true},
        {"Ethernet", 1, true, true, false, false},
        {"Ethernet", 1, false, false, true, false},
        {"Wi-Fi", 2, false, true, false, true},
        {"Wi-Fi", 2, true, false, true, false},
        {"wi-fi", -1, true, true, true, false},
        {"", -1, true, true, true, false},
    };
    for (const Case& c : cases) {
        const NetworkStatus owner{true, c.online, c.wifiOnline, c.hotspotActive, QString(), {}};
        NetworkInterfaceInfo entry;
        entry.interfaceName = QString::fromLatin1(c.name);
        entry.classify(owner);
        EXPECT_EQ(entry.type, c.type) << c.name;
        EXPECT_EQ(entry.active, c.active) << c.name;
    }
}

TEST(CaptureDeviceTest, NamesItsDirectionByTheExactWord) {
    const auto displayName = [](const char* loopback) {
        CaptureDevice device;
        device.friendlyName = QStringLiteral("Line");
        device.loopback = QString::fromLatin1(loopback);
        device.prefixDisplayName();
        return device.friendlyName;
    };
    EXPECT_EQ(displayName("Regular"), QLatin1String("IN: Line"));
    EXPECT_EQ(displayName("Loopback"), QLatin1String("OUT: Line"));
    EXPECT_EQ(displayName("loopback"), QLatin1String("Line"));
    EXPECT_EQ(displayName(""), QLatin1String("Line"));
}

/// Every text of a record counts when it is compared.
template <class Record>
void expectEveryTextToCount(std::initializer_list<QString Record::*> texts) {
    for (const auto text : texts) {
        Record changed;
        changed.*text = QStringLiteral("changed");
        EXPECT_FALSE(changed == Record());
    }
    EXPECT_TRUE(Record() == Record());
}

TEST(RecordsTest, AreEqualByEveryOneOfTheirFields) {
    expectEveryTextToCount<CaptureDevice>({&CaptureDevice::friendlyName, &CaptureDevice::description,
                                           &CaptureDevice::identification, &CaptureDevice::interfaceName,
                                           &CaptureDevice::loopback, &CaptureDevice::status,
                                           &CaptureDevice::connected});
    expectEveryTextToCount<MediaEntry>({&MediaEntry::title, &MediaEntry::cut, &MediaEntry::language,
                                        &MediaEntry::releaseDate, &MediaEntry::imdbRef, &MediaEntry::duration,
                                        &MediaEntry::trackReleaseDate});
    expectEveryTextToCount<ContentUpdateState>(
        {&ContentUpdateState::stateName, &ContentUpdateState::code, &ContentUpdateState::message,
         &ContentUpdateState::progressValue, &ContentUpdateState::updatedTimestamp});
    expectEveryTextToCount<NetworkInterfaceInfo>(
        {&NetworkInterfaceInfo::interfaceName, &NetworkInterfaceInfo::ip,
         &NetworkInterfaceInfo::hardwareAddress, &NetworkInterfaceInfo::netmask,
         &NetworkInterfaceInfo::broadcast});
    expectEveryTextToCount<StatusField>({&StatusField::name, &StatusField::value, &StatusField::unit,
                                         &StatusField::description, &StatusField::type});
    expectEveryTextToCount<SoftwareHealthEntry>(
        {&SoftwareHealthEntry::name, &SoftwareHealthEntry::statusMessage, &SoftwareHealthEntry::timestamp,
         &SoftwareHealthEntry::userName});
    expectEveryTextToCount<SeatInfo>({&SeatInfo::statusCode, &SeatInfo::statusText});

    SeatInfo seat;
    seat.hasIndex = true;
    EXPECT_FALSE(seat == SeatInfo());
}

TEST(RecordsTest, BehindPointersAreEqualByWhatTheyHold) {
    const auto tree = [](const char* value) {
        auto leaf = std::make_shared<ModuleInfo>();
        leaf->properties.emplace_back(QStringLiteral("Temp"), QString::fromLatin1(value));
        auto module = std::make_shared<ModuleInfo>();
        module->subModules = {leaf};
        return QSharedPointer<DetailedStatusInfo>::create(DetailedStatusInfo{{module}});
    };
    const QSharedPointer<DetailedStatusInfo> none;
    EXPECT_TRUE(contentEquals(tree("21"), tree("21")));
    EXPECT_FALSE(contentEquals(tree("21"), tree("22"))) << "however deep the difference lies";
    EXPECT_FALSE(contentEquals(tree("21"), none));
    EXPECT_FALSE(contentEquals(none, tree("21")));
    EXPECT_TRUE(contentEquals(none, none));

    const auto list = [](std::size_t count) {
        SeatStatusList seats;
        for (std::size_t i = 0; i < count; ++i) {
            seats.push_back(std::make_shared<SeatInfo>());
        }
        return seats;
    };
    EXPECT_TRUE(contentEquals(list(2), list(2)));
    EXPECT_FALSE(contentEquals(list(2), list(3)));
}

} // namespace
} // namespace orvex
