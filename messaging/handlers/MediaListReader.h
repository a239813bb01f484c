#pragma once

#include "messaging/records/MediaList.h"

#include <QSharedPointer>

#include <string_view>

namespace Velto::Messaging {

/// Reads the body of a media list answer straight into the record. A library is large: by way of a document
/// tree it would take twice the time and memory. Otherwise by the rules of every body: members by exact name,
/// one of the wrong type counts as absent, the last of several of the same name wins.
///
/// None for a body that is not well formed, nests too deep, or whose first member is no media list. Any
/// thread.
QSharedPointer<orvex::MediaList> readMediaList(std::string_view body);

} // namespace Velto::Messaging
