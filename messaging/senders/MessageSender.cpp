#include "messaging/senders/MessageSender.h"

#include <Velto/Messaging/Messenger.h>

#include <utility>

namespace Velto::Messaging {

namespace {

/// Room for every body the user interface can build; a longer one makes the buffer grow.
constexpr std::size_t bodyBufferSize = 1024;

} // namespace

std::shared_ptr<IMessage> makeGetMessage(const std::string& type, const std::string& text) {
    return std::make_shared<IMessage>(type, messageNumber, text, nullptr,
                                      IMessage::GenericMessageType::Request);
}

MessageSender::MessageSender(Messenger* messenger)
    : m_messenger(messenger)
    , m_buffers(BufferQueue::Create(1, bodyBufferSize)) {}

void MessageSender::sendObject(const std::string& type, const std::function<void(Writer&)>& writeMembers) {
    if (!m_messenger) {
        return;
    }
    rapidjson::StringBuffer body;
    Writer writer(body);
    writer.StartObject();
    writeMembers(writer);
    writer.EndObject();
    auto buffer = m_buffers->AcquireBuffer(body.GetSize(), true);
    buffer->GetBuffer().AppendDataPtr(body.GetString(), body.GetSize());
    m_messenger->send(std::make_shared<IMessage>(type, messageNumber, std::string(), std::move(buffer),
                                                 IMessage::GenericMessageType::Request));
}

void MessageSender::sendPlain(const std::string& type, const std::string& text) {
    if (m_messenger) {
        m_messenger->send(makeGetMessage(type, text));
    }
}

void MessageSender::writeText(Writer& writer, const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    writer.String(utf8.constData(), static_cast<rapidjson::SizeType>(utf8.size()));
}

} // namespace Velto::Messaging
