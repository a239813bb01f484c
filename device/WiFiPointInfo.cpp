#include "device/WiFiPointInfo.h"

namespace orvex {

WiFiPointInfo::WiFiPointInfo(WiFiListEntry entry, QObject* parent)
    : QObject(parent)
    , m_entry(std::move(entry)) {}

WiFiPointInfo::WiFiPointInfo(const WiFiPointInfo& other)
    : QObject(nullptr)
    , m_entry(other.m_entry) {}

} // namespace orvex
