#pragma once

#include <QObject>
#include <QString>

namespace orvex {

/// The state of a service as the pages show it. GUI thread.
class ServiceStatus : public QObject {
    Q_OBJECT
    Q_PROPERTY(int type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    /// The plain value, for records that are read on other threads.
    struct Value {
        int type = 0; ///< 0 neutral or stopped, 1 error, 2 in progress, 3 good
        QString text;

        bool operator==(const Value& other) const { return type == other.type && text == other.text; }
    };

    explicit ServiceStatus(QObject* parent = nullptr);
    explicit ServiceStatus(const Value& value, QObject* parent = nullptr);
    ServiceStatus(const ServiceStatus& other);
    ServiceStatus& operator=(const ServiceStatus& other);

    int type() const { return m_value.type; }
    QString text() const { return m_value.text; }
    Value value() const { return m_value; }

public slots:
    void setType(int type);
    void setText(QString text);

signals:
    void typeChanged();
    void textChanged();

private:
    Value m_value;
};

} // namespace orvex
