#include "velto/wire/Announcement.h"
#include "velto/wire/Envelope.h"
#include "velto/wire/Identity.h"

#include <gtest/gtest.h>
#include <openssl/ssl.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <thread>
#include <vector>

using namespace Velto::Wire;
namespace fs = std::filesystem;

namespace {

FrameError errorOf(std::string_view frame) {
    DecodedFrame decoded;
    return decodeFrame(frame, decoded);
}

Announcement someUnit() {
    Announcement unit;
    unit.service = "KELM";
    unit.uid = std::string(64, 'a');
    unit.name = "Row \"1\" – Zoë";
    unit.serial = "K-0001";
    unit.productVendor = "Orvex";
    unit.productName = "Quivera Hub";
    unit.productModel = "H2";
    unit.port = 40123;
    unit.encrypted = false;
    return unit;
}

std::string with(std::string text, const std::string& what, const std::string& instead) {
    const auto at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return at == std::string::npos ? text : text.replace(at, what.size(), instead);
}

struct TemporaryFolder {
    TemporaryFolder()
        : path(fs::temp_directory_path() / ("wire-" + Identity::generate("folder").uid())) {}
    ~TemporaryFolder() { fs::remove_all(path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    fs::path path;
};

std::string uidPresentedBy(const Identity& identity) {
    const std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context(SSL_CTX_new(TLS_server_method()),
                                                                    &SSL_CTX_free);
    identity.useIn(context.get());
    return uidOfCertificate(SSL_CTX_get0_certificate(context.get()));
}

} // namespace

TEST(Envelope, CarriesEveryMemberAndLeavesTheBodyAlone) {
    const std::string body("{\"a\":\"\n\"}\n \xff", 13);
    const Header header{Kind::Error, "Get\"Name\n", 4294967295U, "pörrt", -7};
    const auto frame = encodeFrame(header, body);
    ASSERT_TRUE(frame);
    DecodedFrame decoded;
    ASSERT_EQ(decodeFrame(*frame, decoded), FrameError::None);
    EXPECT_EQ(decoded.header.kind, Kind::Error);
    EXPECT_EQ(decoded.header.type, header.type);
    EXPECT_EQ(decoded.header.number, header.number);
    EXPECT_EQ(decoded.header.text, header.text);
    EXPECT_EQ(decoded.header.status, -7);
    EXPECT_EQ(decoded.body, body);
}

TEST(Envelope, StatusIsWrittenByAnswersOnly) {
    EXPECT_EQ(*encodeFrame({Kind::Request, "A", 1, "1", 0}, ""),
              "{\"kind\":\"request\",\"type\":\"A\",\"number\":1,\"text\":\"1\"}\n");
    EXPECT_EQ(*encodeFrame({Kind::Response, "A", 1, "", 0}, "{}"),
              "{\"kind\":\"response\",\"type\":\"A\",\"number\":1,\"text\":\"\",\"status\":0}\n{}");
}

TEST(Envelope, TakesUnknownMembersAndMissingOptionalOnes) {
    DecodedFrame decoded;
    ASSERT_EQ(decodeFrame("{\"x\":[{}],\"type\":\"T\",\"kind\":\"notification\"} \n", decoded),
              FrameError::None);
    EXPECT_EQ(decoded.header.kind, Kind::Notification);
    EXPECT_EQ(decoded.header.number, 0U);
    EXPECT_TRUE(decoded.body.empty());
}

TEST(Envelope, RefusesBrokenHeaders) {
    EXPECT_EQ(errorOf(""), FrameError::NoHeader);
    EXPECT_EQ(errorOf("{\"kind\":\"request\",\"type\":\"T\"}"), FrameError::NoHeader);
    for (const std::string header :
         {"", "[]", "x", "{\"kind\":\"request\",\"type\":\"T\"", "{\"kind\":\"request\",\"type\":\"T\"}}",
          "{\"kind\":\"request\",\"type\":\"\xff\"}"})
        EXPECT_EQ(errorOf(header + "\n{}"), FrameError::HeaderNotJson) << header;
    EXPECT_EQ(errorOf(std::string("{\"kind\":\"request\",\"type\":\"T\"}\0x\n", 32)),
              FrameError::HeaderNotJson);
    EXPECT_EQ(errorOf(std::string(maximumHeaderSize - 1, '[') + "\n"), FrameError::HeaderNotJson);
    for (const char* const header :
         {"{}", "{\"kind\":\"request\"}", "{\"type\":\"T\"}", "{\"kind\":\"Request\",\"type\":\"T\"}",
          "{\"kind\":\"request\",\"type\":\"\"}", "{\"kind\":\"request\",\"type\":1}",
          "{\"kind\":\"request\",\"type\":\"T\",\"number\":-1}",
          "{\"kind\":\"request\",\"type\":\"T\",\"number\":4294967296}",
          "{\"kind\":\"request\",\"type\":\"T\",\"text\":null}",
          "{\"kind\":\"request\",\"type\":\"T\",\"status\":2147483648}"})
        EXPECT_EQ(errorOf(std::string(header) + "\n"), FrameError::BadHeader) << header;
}

TEST(Envelope, LimitsAreTheSameAtBothEnds) {
    const std::size_t rest = encodeFrame({Kind::Request, "T", 1, "", 0}, "")->size();
    const std::string longest(maximumHeaderSize - rest, 'x');
    const auto fits = encodeFrame({Kind::Request, "T", 1, longest, 0}, "");
    ASSERT_TRUE(fits);
    EXPECT_EQ(errorOf(*fits), FrameError::None);
    EXPECT_FALSE(encodeFrame({Kind::Request, "T", 1, longest + 'x', 0}, ""));
    EXPECT_EQ(errorOf(with(*fits, "xx", "xxx")), FrameError::HeaderTooLarge);
    // Escapes count as what they become.
    EXPECT_FALSE(encodeFrame({Kind::Request, std::string(maximumHeaderSize / 4, '\x01'), 1, "", 0}, ""));

    const std::string body(maximumFrameSize - rest, ' ');
    const auto largest = encodeFrame({Kind::Request, "T", 1, "", 0}, body);
    ASSERT_TRUE(largest);
    EXPECT_EQ(errorOf(*largest), FrameError::None);
    EXPECT_FALSE(encodeFrame({Kind::Request, "T", 1, "", 0}, body + ' '));
    EXPECT_EQ(errorOf(*largest + ' '), FrameError::FrameTooLarge);
    EXPECT_FALSE(encodeFrame({Kind::Request, "\xc3", 1, "", 0}, "")) << "not UTF-8";
}

TEST(Announcement, ArrivesAsItWasSent) {
    const auto unit = someUnit();
    const auto received = decodeAnnouncement(encode(unit));
    ASSERT_TRUE(received);
    EXPECT_EQ(received->service, unit.service);
    EXPECT_EQ(received->uid, unit.uid);
    EXPECT_EQ(received->name, unit.name);
    EXPECT_EQ(received->serial, unit.serial);
    EXPECT_EQ(received->productVendor, unit.productVendor);
    EXPECT_EQ(received->productName, unit.productName);
    EXPECT_EQ(received->productModel, unit.productModel);
    EXPECT_EQ(received->port, unit.port);
    EXPECT_FALSE(received->encrypted);

    const auto probe = decodeProbe(encode(Probe{"KELM", 3, "id-1"}));
    ASSERT_TRUE(probe);
    EXPECT_EQ(probe->service, "KELM");
    EXPECT_EQ(probe->version, 3);
    EXPECT_EQ(probe->id, "id-1");
}

TEST(Announcement, LongNameIsCutAtACharacter) {
    auto unit = someUnit();
    unit.name.clear();
    for (int i = 0; i < 500; ++i)
        unit.name += "x\xe2\x82\xac"; // four bytes that no limit divides evenly
    auto received = decodeAnnouncement(encode(unit));
    ASSERT_TRUE(received);
    EXPECT_EQ(received->name.size(), 256U);

    unit.name = "y" + unit.name;
    received = decodeAnnouncement(encode(unit));
    ASSERT_TRUE(received) << "a character was split";
    EXPECT_EQ(received->name.size(), 254U);

    unit.serial = unit.productVendor = unit.productModel = std::string(256, 's');
    unit.name = std::string(256, '\x02'); // six bytes each once escaped
    const auto datagram = encode(unit);
    EXPECT_LE(datagram.size(), maximumDatagramSize);
    EXPECT_GT(datagram.size(), maximumDatagramSize - 6) << "no more is cut than must be";
    EXPECT_TRUE(decodeAnnouncement(datagram));
}

TEST(Announcement, RefusesWhatIsNotWellFormed) {
    const auto good = encode(someUnit());
    ASSERT_TRUE(decodeAnnouncement(with(good, "{", "{\"later\":null,")));
    EXPECT_FALSE(decodeAnnouncement(""));
    EXPECT_FALSE(decodeAnnouncement(good.substr(0, good.size() - 1)));
    EXPECT_FALSE(decodeAnnouncement(good + '\0' + "x"));
    EXPECT_FALSE(decodeAnnouncement("[" + good + "]"));
    EXPECT_FALSE(decodeAnnouncement(with(good, "{", "{\"later\":{},")));
    EXPECT_FALSE(decodeAnnouncement(with(good, "{", "{\"later\":[1],")));
    EXPECT_FALSE(decodeAnnouncement(good + std::string(maximumDatagramSize, ' ')));
    for (const char* const member : {"service", "version", "uid", "name", "serial", "productVendor",
                                     "productName", "productModel", "port", "encrypted"}) {
        const std::string key = '"' + std::string(member) + '"';
        EXPECT_FALSE(decodeAnnouncement(with(good, key + ":", "\"x\":"))) << member;
        EXPECT_FALSE(decodeAnnouncement(with(good, key + ":", key + ":null,\"x\":"))) << member;
    }
    for (const char* const port : {"0", "65536", "-1", "\"40123\"", "40123.5"})
        EXPECT_FALSE(decodeAnnouncement(with(good, "40123", port))) << port;
    for (const char* const version : {"\"version\":0", "\"version\":-1", "\"version\":1e99"})
        EXPECT_FALSE(decodeAnnouncement(with(good, "\"version\":1", version))) << version;
    const std::string uid(64, 'a');
    for (const auto& bad : {std::string(), std::string(129, 'a'), std::string("a\\n"), std::string("a\x7f")})
        EXPECT_FALSE(decodeAnnouncement(with(good, uid, bad))) << bad;
    EXPECT_TRUE(decodeAnnouncement(with(good, "K-0001", std::string(256, 'k'))));
    EXPECT_FALSE(decodeAnnouncement(with(good, "K-0001", std::string(257, 'k'))));
    EXPECT_FALSE(decodeProbe(good)) << "an announcement is no probe";
    EXPECT_FALSE(decodeAnnouncement(encode(Probe{"KELM", 1, "id"})));
    EXPECT_FALSE(decodeProbe(encode(Probe{"KELM", 1, ""})));
}

TEST(Identity, UidBelongsToTheKeyThatIsPresented) {
    const auto one = Identity::generate("one");
    const auto other = Identity::generate("one");
    EXPECT_TRUE(isKeyUid(one.uid()));
    EXPECT_NE(one.uid(), other.uid());
    EXPECT_EQ(uidPresentedBy(one), one.uid());
    EXPECT_EQ(uidOfCertificate(nullptr), "");
    EXPECT_NO_THROW(Identity::generate(std::string(200, 'n') + "\xe2\x82\xac"));
}

TEST(Identity, OnlyLowerCaseSha256HexIsTiedToAKey) {
    EXPECT_TRUE(isKeyUid(std::string(64, 'f')));
    for (const auto& uid : {std::string(), std::string(63, 'f'), std::string(65, 'f'), std::string(64, 'F'),
                            std::string(64, 'g')})
        EXPECT_FALSE(isKeyUid(uid)) << uid;
}

TEST(Identity, IsKeptInAFileThatOnlyItsOwnerReads) {
    const TemporaryFolder folder;
    const auto made = Identity::loadOrCreate(folder.path / "keys", "unit");
    const auto loaded = Identity::loadOrCreate(folder.path / "keys", "unit");
    EXPECT_EQ(loaded.uid(), made.uid());
    EXPECT_EQ(uidPresentedBy(loaded), made.uid());
    EXPECT_NE(Identity::loadOrCreate(folder.path / "keys", "second").uid(), made.uid());
#ifndef _WIN32
    EXPECT_EQ(fs::status(folder.path / "keys" / "unit.pem").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
#endif
}

TEST(Identity, ManyThatStartAtOnceAgreeOnOneKey) {
    const TemporaryFolder folder;
    std::vector<std::string> uids(8);
    std::vector<std::thread> starters;
    for (auto& uid : uids)
        starters.emplace_back([&] { uid = Identity::loadOrCreate(folder.path, "unit").uid(); });
    for (auto& starter : starters)
        starter.join();
    EXPECT_EQ(std::set<std::string>(uids.begin(), uids.end()).size(), 1U);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path), fs::directory_iterator()), 1)
        << "unfinished files stay behind";
}

TEST(Identity, UselessKeyFileIsToldWithItsPathAndLeftAlone) {
    const TemporaryFolder folder;
    Identity::loadOrCreate(folder.path, "mine");
    const auto other = Identity::generate("other");
    const auto write = [&folder](const std::string& text) {
        std::ofstream(folder.path / "unit.pem", std::ios::binary) << text;
    };
    std::ifstream file(folder.path / "mine.pem");
    const std::string pem{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    for (const auto& text : {std::string(), std::string("no key"), pem.substr(0, pem.size() / 2)}) {
        write(text);
        try {
            Identity::loadOrCreate(folder.path, "unit");
            ADD_FAILURE() << "taken: " << text;
        } catch (const std::runtime_error& error) {
            EXPECT_NE(std::string(error.what()).find("unit.pem"), std::string::npos) << error.what();
        }
    }
    write("a file");
    EXPECT_THROW(Identity::loadOrCreate(folder.path / "unit.pem", "unit"), std::runtime_error);
}
