// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/result_set.h"

#include <QAbstractTableModel>

namespace tq::gui {

/// The results as a table: one row per submission, the columns Date,
/// Address and one per question. It reads the core's result set in place;
/// after the set changed, call reload().
class ResultsTableModel : public QAbstractTableModel
{
    Q_OBJECT
  public:
    explicit ResultsTableModel(const results::ResultSet& set, QObject* parent = nullptr);

    /// Tells the views that the whole set changed.
    void reload();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The text of one cell: ticked boxes joined by "; ".
    static QString CellText(const results::ResultSet& set, int row, int column);

  private:
    const results::ResultSet& m_set;
};

} // namespace tq::gui
