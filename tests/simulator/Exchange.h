#pragma once

#include "ForeignClient.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <chrono>
#include <string>
#include <thread>
#include <utility>

/// A frame taken apart by hand, so that the unit's own reading of the format is not what checks it.
struct Frame {
    explicit Frame(const std::string& text) {
        const auto end = text.find('\n');
        header.Parse(text.data(), end == std::string::npos ? 0 : end);
        bodyText = end == std::string::npos ? std::string() : text.substr(end + 1);
        body.Parse(bodyText.data(), bodyText.size());
    }
    std::string word(const char* member) const {
        const bool there = header.IsObject() && header.HasMember(member) && header[member].IsString();
        return there ? header[member].GetString() : "";
    }
    int status() const {
        return header.IsObject() && header.HasMember("status") ? header["status"].GetInt() : -1;
    }

    rapidjson::Document header;
    rapidjson::Document body;
    std::string bodyText;
};

inline std::string request(const std::string& type, const std::string& body = {}, unsigned int number = 1) {
    return R"({"kind":"request","type":")" + type + R"(","number":)" + std::to_string(number) +
           R"(,"text":"1"})" + '\n' + body;
}

inline Frame receive(ForeignClient& client) {
    const auto frame = client.receive();
    EXPECT_TRUE(frame) << "nothing came";
    return Frame(frame.value_or(std::string()));
}

inline Frame ask(ForeignClient& client, const std::string& type, const std::string& body = {}) {
    EXPECT_EQ(client.send(request(type, body)), "");
    return receive(client);
}

/// Waits for something that another thread brings about.
template <typename Condition>
bool eventually(Condition condition) {
    const auto end = std::chrono::steady_clock::now() + ForeignClient::patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}
