#include <Velto/Messaging/BodyJSONParser.h>

#include <gtest/gtest.h>

#include <string>

namespace Velto::Messaging {
namespace {

std::shared_ptr<rapidjson::Document> parse(const std::string& body) {
    const auto buffer = std::make_shared<ManagedBuffer>();
    buffer->GetBuffer().AppendDataPtr(body.data(), body.size());
    return BodyJSONParser::parse(std::make_shared<IResponse>(
        "Any", 1, "", buffer, IMessage::GenericMessageType::Response, IResponse::StatusType::Ok));
}

/// {"a":{"a":…}} or {"a":[[…]]}, `depth` objects and arrays in all.
std::string nested(int depth, bool arrays) {
    std::string body = "{\"a\":";
    for (int level = 1; level < depth; ++level)
        body += arrays ? "[" : "{\"a\":";
    return body + "1" + std::string(static_cast<std::size_t>(depth) - 1, arrays ? ']' : '}') + "}";
}

TEST(BodyJSONParser, ReadsAnObject) {
    const auto document =
        parse(R"( {"text":"Gr\u00fc\u00df","big":18446744073709551615,"list":[1.5,null]} )");
    EXPECT_STREQ((*document)["text"].GetString(), "Gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ((*document)["big"].GetUint64(), 18446744073709551615U);
    EXPECT_DOUBLE_EQ((*document)["list"][0].GetDouble(), 1.5);
    EXPECT_TRUE((*document)["list"][1].IsNull());
}

TEST(BodyJSONParser, GivesAnEmptyObjectForAnythingElse) {
    const std::string unreadable[] = {"",
                                      " ",
                                      "null",
                                      "[1]",
                                      "\"text\"",
                                      "{\"a\":1",
                                      "{\"a\":1} x",
                                      "{\"a\":NaN}",
                                      "{\"a\":1e999}",
                                      "{\"a\":\"\xC3\x28\"}",
                                      "{\"a\":\"\xED\xA0\x80\"}",
                                      std::string("{\"a\":1}\0{}", 10),
                                      std::string("\0", 1)};
    for (const std::string& body : unreadable) {
        const auto document = parse(body);
        ASSERT_TRUE(document && document->IsObject()) << body;
        EXPECT_TRUE(document->ObjectEmpty()) << body;
    }
    EXPECT_TRUE(BodyJSONParser::parse(nullptr)->IsObject());
    EXPECT_TRUE(BodyJSONParser::parse(
                    std::make_shared<IMessage>("Any", 1, "", nullptr, IMessage::GenericMessageType::Request))
                    ->IsObject());
}

TEST(BodyJSONParser, RefusesDeepNestingHoweverDeep) {
    for (const bool arrays : {false, true}) {
        EXPECT_FALSE(parse(nested(BodyJSONParser::maximumDepth, arrays))->ObjectEmpty());
        EXPECT_TRUE(parse(nested(BodyJSONParser::maximumDepth + 1, arrays))->ObjectEmpty());
        EXPECT_TRUE(parse(nested(1000000, arrays))->ObjectEmpty());
    }
}

} // namespace
} // namespace Velto::Messaging
