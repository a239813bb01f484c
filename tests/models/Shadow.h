#pragma once

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>
#include <QMap>
#include <QStringList>

#include <utility>

namespace orvex::Test {

/// What a view knows of a model: built and kept up to date by the signals alone.
class Shadow : public QObject {
public:
    explicit Shadow(const QAbstractItemModel& model)
        : m_model(model) {
        connect(&model, &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex&, int first, int last) {
                    m_changes << QStringLiteral("+%1-%2").arg(first).arg(last);
                    for (int row = first; row <= last; ++row) {
                        m_rows.insert(row, read(row));
                    }
                });
        connect(&model, &QAbstractItemModel::rowsRemoved, this,
                [this](const QModelIndex&, int first, int last) {
                    m_changes << QStringLiteral("-%1-%2").arg(first).arg(last);
                    m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
                });
        connect(
            &model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) {
                m_changes << QStringLiteral("%1-%2:%3").arg(first.row()).arg(last.row()).arg(roles.size());
                for (int row = first.row(); row <= last.row(); ++row) {
                    const auto now = read(row);
                    for (const int role : roles.isEmpty() ? now.keys().toVector() : roles) {
                        m_rows[row][role] = now[role];
                    }
                }
            });
        connect(&model, &QAbstractItemModel::modelReset, this, [this] {
            m_rows.clear();
            for (int row = 0; row < m_model.rowCount(); ++row) {
                m_rows.append(read(row));
            }
        });
    }

    bool isTrue() const {
        bool same = m_rows.size() == m_model.rowCount();
        for (int row = 0; same && row < m_rows.size(); ++row) {
            same = m_rows[row] == read(row);
        }
        return same;
    }
    /// What was told since the last call: "+first-last" inserted, "-first-last" removed, "first-last:roles"
    /// changed.
    QStringList takeChanges() { return std::exchange(m_changes, {}); }
    QVariant value(int row, int role) const { return m_rows.value(row).value(role); }

private:
    QMap<int, QVariant> read(int row) const {
        QMap<int, QVariant> roles;
        const auto names = m_model.roleNames();
        for (auto role = names.begin(); role != names.end(); ++role) {
            roles.insert(role.key(), m_model.data(m_model.index(row, 0), role.key()));
        }
        return roles;
    }

    const QAbstractItemModel& m_model;
    QList<QMap<int, QVariant>> m_rows;
    QStringList m_changes;
};

} // namespace orvex::Test
