#pragma once

#include "messaging/handlers/KeptState.h"
#include "messaging/records/ExperienceModesState.h"

#include <Velto/Messaging/IMessage.h>

#include <QObject>
#include <QVariant>

namespace Velto::Messaging {

/// Reads the experience modes of a unit and keeps them. Runs, and emits, on the messenger's thread.
class GetExperienceModesHandler : public QObject, public IResponseHandler {
    Q_OBJECT

public:
    void handleResponse(std::shared_ptr<const IResponse> response) override;

    /// The modes of the last message. Any thread.
    orvex::ExperienceModesState modes() const { return m_modes.snapshot(); }

signals:
    /// ("getExperienceModes", nothing)
    void experienceModesResponseReceived(QVariant key, QVariant value);

private:
    KeptState<orvex::ExperienceModesState> m_modes;
};

} // namespace Velto::Messaging
