// SPDX-License-Identifier: GPL-3.0-or-later
#include "results_table_model.h"

namespace tq::gui {

ResultsTableModel::ResultsTableModel(const results::ResultSet& set, QObject* parent)
    : QAbstractTableModel(parent), m_set(set)
{
}

void ResultsTableModel::reload()
{
    beginResetModel();
    endResetModel();
}

int ResultsTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_set.rows.size());
}

int ResultsTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2 + static_cast<int>(m_set.questions.size());
}

QString ResultsTableModel::CellText(const results::ResultSet& set, int row, int column)
{
    const auto& r = set.rows[static_cast<size_t>(row)];
    if (column == 0)
        return QString::fromStdString(r.date);
    if (column == 1)
        return QString::fromStdString(r.address);
    const auto q = static_cast<size_t>(column - 2);
    if (q < r.picks.size() && !r.picks[q].empty()) {
        QStringList picks;
        for (const auto& p : r.picks[q])
            picks << QString::fromStdString(p);
        return picks.join("; ");
    }
    return q < r.cells.size() ? QString::fromStdString(r.cells[q]) : QString();
}

QVariant ResultsTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return CellText(m_set, index.row(), index.column());
    return {};
}

QVariant ResultsTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    if (section == 0)
        return tr("Date");
    if (section == 1)
        return tr("Address");
    const auto q = static_cast<size_t>(section - 2);
    return q < m_set.questions.size() ? QString::fromStdString(m_set.questions[q].title) : QVariant();
}

} // namespace tq::gui
