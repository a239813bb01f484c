#pragma once

#include <QAbstractProxyModel>
#include <QRegularExpression>
#include <QVector>

namespace orvex {

/// The titles of a `MediaListModel` as the page shows them: sorted by one or more columns, and only those
/// that the search finds. GUI thread.
///
/// Qt's own sort/filter proxy rebuilds its mapping for every run of rows that a key stroke adds or removes
/// and sorts twice for each change of column: with a library of 100,000 titles the window stood still for a
/// second and more.
class MediaListProxy : public QAbstractProxyModel {
    Q_OBJECT

public:
    /// The order within one column; text is compared without regard to case.
    struct SortPass {
        int role;
        Qt::SortOrder order;
    };

    using QAbstractProxyModel::QAbstractProxyModel;

    /// A list. Not owned, outlives this or is replaced.
    void setSourceModel(QAbstractItemModel* source) override;

    /// Sorts by the last of these; each earlier one decides between titles that the later ones hold equal.
    /// Stays in force for later lists.
    void setSortPasses(QVector<SortPass> passes);

    /// Shows the rows in whose `role` the regular expression is found, whatever the case; empty: all. One
    /// that is not valid finds nothing.
    void setFilter(int role, const QString& expression);

    int rowCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override { return rowCount(parent) > 0; }
    int columnCount(const QModelIndex& parent = {}) const override;
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    QModelIndex mapToSource(const QModelIndex& shown) const override;
    QModelIndex mapFromSource(const QModelIndex& source) const override;

private:
    void scheduleRefresh();
    void refresh();
    void sortAll();
    void show(QVector<int> rows);
    QVector<int> found() const;
    QString text(int sourceRow, int role) const;

    QVector<SortPass> m_passes;
    int m_filterRole = Qt::DisplayRole;
    QRegularExpression m_filter;
    QVector<int> m_order; ///< every row of the source, sorted
    QVector<int> m_shown; ///< those of `m_order` that the search finds
    bool m_refreshScheduled = false;
};

} // namespace orvex
