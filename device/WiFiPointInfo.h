#pragma once

#include "messaging/records/WiFiListEntry.h"

#include <QObject>
#include <QString>

namespace orvex {

/// A Wi-Fi network as the pages list it. Immutable; GUI thread.
class WiFiPointInfo : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(bool active READ active CONSTANT)

public:
    explicit WiFiPointInfo(WiFiListEntry entry, QObject* parent = nullptr);
    WiFiPointInfo(const WiFiPointInfo& other);
    WiFiPointInfo& operator=(const WiFiPointInfo&) = delete;

    QString name() const { return m_entry.name; }
    bool active() const { return m_entry.active; } ///< the unit is joined to it

private:
    WiFiListEntry m_entry;
};

} // namespace orvex
