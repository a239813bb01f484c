#include "device/ServiceStatus.h"

namespace orvex {

ServiceStatus::ServiceStatus(QObject* parent)
    : QObject(parent) {}

ServiceStatus::ServiceStatus(const Value& value, QObject* parent)
    : QObject(parent)
    , m_value(value) {}

// A copy is an object of its own: parent and connections stay behind.
ServiceStatus::ServiceStatus(const ServiceStatus& other)
    : QObject(nullptr)
    , m_value(other.m_value) {}

ServiceStatus& ServiceStatus::operator=(const ServiceStatus& other) {
    if (this != &other) {
        setType(other.type());
        setText(other.text());
    }
    return *this;
}

void ServiceStatus::setType(int type) {
    if (m_value.type == type) {
        return;
    }
    m_value.type = type;
    emit typeChanged();
}

void ServiceStatus::setText(QString text) {
    if (m_value.text == text) {
        return;
    }
    m_value.text = std::move(text);
    emit textChanged();
}

} // namespace orvex
