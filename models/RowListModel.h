#pragma once

#include "models/CustomListModel.h"

#include <QVector>

#include <algorithm>
#include <utility>

namespace orvex {

/// A list model that holds its rows as values, compares new ones with them, and tells the views only what
/// differs.
template <class Row>
class RowListModel : public CustomListModel {
public:
    using CustomListModel::CustomListModel;

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_rowCount; }

protected:
    /// None when out of range.
    const Row* rowAt(const QModelIndex& index) const {
        const bool inside = index.isValid() && index.column() == 0 && index.row() < m_rowCount;
        return inside ? &m_rows.at(index.row()) : nullptr;
    }

    /// Removes all rows, then inserts the new ones.
    void resetRows(QVector<Row> rows) {
        removeFrom(0);
        m_rows = std::move(rows);
        appendUpTo(m_rows.size());
    }

    /// Changes, removes and appends what differs.
    void updateRows(QVector<Row> rows) {
        removeFrom(std::min(m_rowCount, rows.size()));
        const QVector<Row> former = std::exchange(m_rows, std::move(rows));
        int firstDiffering = -1;
        for (int row = 0; row <= m_rowCount; ++row) {
            const bool differs = row < m_rowCount && !(std::as_const(m_rows).at(row) == former.at(row));
            if (differs && firstDiffering < 0) {
                firstDiffering = row;
            } else if (!differs && firstDiffering >= 0) {
                emit dataChanged(index(firstDiffering), index(row - 1));
                firstDiffering = -1;
            }
        }
        appendUpTo(m_rows.size());
    }

private:
    void removeFrom(int first) {
        if (first < m_rowCount) {
            beginRemoveRows({}, first, m_rowCount - 1);
            m_rows.resize(first);
            m_rowCount = first;
            endRemoveRows();
        }
    }

    /// The rows are there already; the views are told.
    void appendUpTo(int count) {
        if (m_rowCount < count) {
            beginInsertRows({}, m_rowCount, count - 1);
            m_rowCount = count;
            endInsertRows();
        }
    }

    QVector<Row> m_rows;
    int m_rowCount = 0; ///< what the views have been told
};

} // namespace orvex
