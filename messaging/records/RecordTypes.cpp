#include "messaging/records/RecordTypes.h"

#include "messaging/records/AdaptiveGamingSelectedProfile.h"
#include "messaging/records/ContentUpdateState.h"
#include "messaging/records/DetailedStatusInfo.h"
#include "messaging/records/MediaList.h"
#include "messaging/records/NetworkStatus.h"
#include "messaging/records/SoftwareHealthStatus.h"

namespace orvex {

void registerRecordTypes() {
    qRegisterMetaType<QSharedPointer<NetworkStatus>>("QSharedPointer<orvex::NetworkStatus>");
    qRegisterMetaType<QSharedPointer<DetailedStatusInfo>>("QSharedPointer<orvex::DetailedStatusInfo>");
    qRegisterMetaType<QSharedPointer<SoftwareHealthStatus>>("QSharedPointer<orvex::SoftwareHealthStatus>");
    qRegisterMetaType<QSharedPointer<ContentUpdateState>>("QSharedPointer<orvex::ContentUpdateState>");
    qRegisterMetaType<QSharedPointer<AdaptiveGamingSelectedProfile>>(
        "QSharedPointer<orvex::AdaptiveGamingSelectedProfile>");
    qRegisterMetaType<QSharedPointer<MediaList>>("QSharedPointer<orvex::MediaList>");
}

} // namespace orvex
