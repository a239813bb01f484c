#pragma once

#include <Velto/Buffer.h>
#include <Velto/Messaging/IMessage.h>

#include <QString>

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace Velto::Messaging {

class Messenger;

/// The number in every envelope of this program.
constexpr std::uint32_t messageNumber = 1;

/// A request without a body. `text` is its argument, "1" for all but one of them.
std::shared_ptr<IMessage> makeGetMessage(const std::string& type, const std::string& text = "1");

/// What all senders share: the messenger, one buffer that every body is sent in, and the envelope. Any
/// thread: a request may be performed by the messenger's thread while the GUI's already performs the next
/// one; who comes second waits for the buffer. It does not own the messenger: a sender is called inside the
/// messenger's own callbacks, where the last reference to it must never drop.
class MessageSender {
public:
    using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

    /// `messenger` outlives every call; none makes the sender send nothing.
    explicit MessageSender(Messenger* messenger);

protected:
    /// Sends `type` with one JSON object as body; `writeMembers` writes its members in their order.
    void sendObject(const std::string& type, const std::function<void(Writer&)>& writeMembers);

    /// Sends `type` with no body; `text` as for `makeGetMessage`.
    void sendPlain(const std::string& type, const std::string& text);

    static void writeText(Writer& writer, const QString& text);

private:
    Messenger* m_messenger;
    std::shared_ptr<BufferQueue> m_buffers;
};

} // namespace Velto::Messaging
