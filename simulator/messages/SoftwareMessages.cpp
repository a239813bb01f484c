#include "simulator/messages/Body.h"
#include "simulator/messages/Messages.h"

namespace Simulator {

Answer getUpgrade(UnitState& state, const Request& /*request*/) {
    const SoftwareState& software = state.software;
    Body body;
    body.object("last").text("version", software.lastVersion).text("status", software.lastStatus).endObject();
    body.object("current").text("version", software.version).endObject();
    return answered(body.finish());
}

} // namespace Simulator
