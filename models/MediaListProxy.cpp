#include "models/MediaListProxy.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace orvex {

namespace {

/// What compares like the text does without regard to case, and much faster.
QString folded(const QString& text) {
    QString key;
    key.reserve(text.size());
    for (const uint character : text.toUcs4()) {
        const uint lower = QChar::toCaseFolded(character);
        if (QChar::requiresSurrogates(lower)) {
            key.append(QChar(QChar::highSurrogate(lower)));
            key.append(QChar(QChar::lowSurrogate(lower)));
        } else {
            key.append(QChar(lower));
        }
    }
    return key;
}

} // namespace

void MediaListProxy::setSourceModel(QAbstractItemModel* source) {
    if (QAbstractItemModel* const former = sourceModel()) {
        former->disconnect(this);
    }
    beginResetModel();
    QAbstractProxyModel::setSourceModel(source);
    m_order.clear();
    m_shown.clear();
    endResetModel();
    if (source) {
        connect(source, &QAbstractItemModel::rowsInserted, this, &MediaListProxy::scheduleRefresh);
        connect(source, &QAbstractItemModel::rowsRemoved, this, &MediaListProxy::scheduleRefresh);
        connect(source, &QAbstractItemModel::modelReset, this, &MediaListProxy::scheduleRefresh);
        connect(source, &QAbstractItemModel::dataChanged, this, &MediaListProxy::scheduleRefresh);
        refresh();
    }
}

void MediaListProxy::setSortPasses(QVector<SortPass> passes) {
    m_passes = std::move(passes);
    m_refreshScheduled = false;
    sortAll();
    show(found());
}

void MediaListProxy::setFilter(int role, const QString& expression) {
    m_filterRole = role;
    m_filter = QRegularExpression(expression, QRegularExpression::CaseInsensitiveOption);
    m_filter.optimize();
    if (m_refreshScheduled) {
        refresh();
    } else {
        show(found());
    }
}

// A list that was read again tells its changes run by run: one refresh serves them all. The rows change where
// they stand, so that whoever is reading the list stays where they are.
void MediaListProxy::scheduleRefresh() {
    if (!std::exchange(m_refreshScheduled, true)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_refreshScheduled) {
                    refresh();
                }
            },
            Qt::QueuedConnection);
    }
}

void MediaListProxy::refresh() {
    m_refreshScheduled = false;
    sortAll();
    QVector<int> rows = found();
    const int former = m_shown.size();
    const int count = rows.size();
    if (count < former) {
        beginRemoveRows({}, count, former - 1);
        m_shown = std::move(rows);
        endRemoveRows();
    } else if (count > former) {
        beginInsertRows({}, former, count - 1);
        m_shown = std::move(rows);
        endInsertRows();
    } else {
        m_shown = std::move(rows);
    }
    if (const int common = std::min(former, count); common > 0) {
        emit dataChanged(index(0, 0), index(common - 1, 0));
    }
}

void MediaListProxy::sortAll() {
    const int count = sourceModel() ? sourceModel()->rowCount() : 0;
    m_order.resize(count);
    std::iota(m_order.begin(), m_order.end(), 0);
    std::vector<QString> keys(static_cast<std::size_t>(count));
    for (const SortPass& pass : std::as_const(m_passes)) {
        for (int row = 0; row < count; ++row) {
            keys[static_cast<std::size_t>(row)] = folded(text(row, pass.role));
        }
        const auto key = [&keys](int row) -> const QString& { return keys[static_cast<std::size_t>(row)]; };
        if (pass.order == Qt::AscendingOrder) {
            std::stable_sort(m_order.begin(), m_order.end(),
                             [&key](int one, int other) { return key(one) < key(other); });
        } else {
            std::stable_sort(m_order.begin(), m_order.end(),
                             [&key](int one, int other) { return key(other) < key(one); });
        }
    }
}

QVector<int> MediaListProxy::found() const {
    if (m_filter.pattern().isEmpty()) {
        return m_order;
    }
    QVector<int> rows;
    if (m_filter.isValid()) {
        std::copy_if(m_order.begin(), m_order.end(), std::back_inserter(rows),
                     [this](int row) { return m_filter.match(text(row, m_filterRole)).hasMatch(); });
    }
    return rows;
}

void MediaListProxy::show(QVector<int> rows) {
    if (rows == m_shown) {
        return;
    }
    beginResetModel();
    m_shown = std::move(rows);
    endResetModel();
}

QString MediaListProxy::text(int sourceRow, int role) const {
    return sourceModel() ? sourceModel()->index(sourceRow, 0).data(role).toString() : QString();
}

int MediaListProxy::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_shown.size();
}

int MediaListProxy::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1;
}

QModelIndex MediaListProxy::index(int row, int column, const QModelIndex& parent) const {
    const bool inside = !parent.isValid() && column == 0 && row >= 0 && row < m_shown.size();
    return inside ? createIndex(row, 0) : QModelIndex();
}

QModelIndex MediaListProxy::parent(const QModelIndex&) const {
    return {};
}

QModelIndex MediaListProxy::mapToSource(const QModelIndex& shown) const {
    const bool inside = sourceModel() && shown.isValid() && shown.row() < m_shown.size();
    return inside ? sourceModel()->index(m_shown.at(shown.row()), 0) : QModelIndex();
}

QModelIndex MediaListProxy::mapFromSource(const QModelIndex& source) const {
    return source.isValid() ? index(m_shown.indexOf(source.row()), 0) : QModelIndex();
}

} // namespace orvex
