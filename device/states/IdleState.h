#pragma once

#include "device/states/State.h"

namespace orvex {

/// Polls nothing: a page waits for the user, and no answer may change what is under their hands.
class IdleState : public DeviceInfoManager::State {
public:
    using State::State;
};

} // namespace orvex
