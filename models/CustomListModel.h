#pragma once

#include <QAbstractListModel>

namespace orvex {

/// The common type of the models that change only the rows that changed.
class CustomListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;
};

} // namespace orvex
