#pragma once

#include <Velto/Messaging/IMessage.h>

#include <QVariant>

#include <boost/signals2/signal.hpp>

namespace Velto::Messaging {

/// A handler that reports a value under a name, on the messenger's thread.
class ValueHandler : public IResponseHandler {
public:
    boost::signals2::signal<void(QVariant key, QVariant value)> valueReceived;
};

} // namespace Velto::Messaging
