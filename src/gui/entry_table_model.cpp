// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry_table_model.h"

#include <QBrush>
#include <QColor>
#include <QMimeData>

namespace tq::gui {

EntryTableModel::EntryTableModel(model::EntryStore& store, int page, QObject* parent)
    : QAbstractTableModel(parent), m_store(store), m_page(page)
{
}

int EntryTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : model::kRowsPerPage;
}

int EntryTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColCount;
}

static QString FirstLines(const std::string& text)
{
    // The cell shows the stored text on one line, items apart.
    QString s = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    s.replace("\r\n", " ");
    s.replace('\r', ' ');
    s.replace('\n', ' ');
    return s.simplified();
}

QVariant EntryTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const model::Entry& e = m_store.pages[static_cast<size_t>(m_page - 1)][static_cast<size_t>(index.row())];
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        switch (index.column()) {
        case ColNumber:
            return QString::fromStdString(e.ReferenceNumber);
        case ColType:
            return QString::fromUtf8(e.InputTypeName.c_str());
        case ColText:
            return FirstLines(e.AttributeText);
        default:
            return {};
        }
    }
    if (role == Qt::ForegroundRole && (index.column() == ColType || index.column() == ColText)) {
        if (e.highlight == model::Highlight::Red)
            return QBrush(QColor(255, 0, 0));
        if (e.highlight == model::Highlight::Green)
            return QBrush(QColor(0, 128, 0));
    }
    if (role == Qt::ToolTipRole && toolTips) {
        if (index.column() == ColEdit)
            return QString("Click on the Edit Button to make changes");
        if (index.column() == ColText)
            return QString("To edit the text, double on the Edit Button");
    }
    if (role == Qt::TextAlignmentRole && index.column() == ColNumber)
        return int(Qt::AlignCenter);
    return {};
}

QVariant EntryTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::ToolTipRole && orientation == Qt::Horizontal && section == ColEdit)
        return QString("Edit Input Type");
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section;
    switch (section) {
    case ColNumber:
        return QString("#");
    case ColClear:
        return QString();
    case ColType:
        return QString("Input Types");
    case ColText:
        return QString("Attributes");
    case ColEdit:
        return QString();
    default:
        return {};
    }
}

Qt::ItemFlags EntryTableModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled;
    if (index.column() == ColNumber)
        f |= Qt::ItemIsEditable;
    if (index.column() == ColType)
        f |= Qt::ItemIsDragEnabled;
    return f;
}

bool EntryTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || index.column() != ColNumber)
        return false;
    m_store.pages[static_cast<size_t>(m_page - 1)][static_cast<size_t>(index.row())].ReferenceNumber =
        value.toString().toStdString();
    emit dataChanged(index, index);
    if (onNumberChanged)
        onNumberChanged(index.row());
    return true;
}

QStringList EntryTableModel::mimeTypes() const
{
    return {kRowMime, kTypeMime};
}

QMimeData* EntryTableModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    auto* md = new QMimeData;
    md->setData(kRowMime, QByteArray::number(indexes.first().row()));
    return md;
}

bool EntryTableModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int, int, const QModelIndex& parent) const
{
    return parent.isValid() && (data->hasFormat(kRowMime) || data->hasFormat(kTypeMime));
}

bool EntryTableModel::dropMimeData(const QMimeData* data, Qt::DropAction, int, int, const QModelIndex& parent)
{
    if (!parent.isValid() || !onDrop)
        return false;
    if (data->hasFormat(kRowMime))
        onDrop(parent.row(), data->data(kRowMime).toInt(), -1);
    else if (data->hasFormat(kTypeMime))
        onDrop(parent.row(), -1, data->data(kTypeMime).toInt());
    else
        return false;
    // the core changed the store; the caller refreshes the views
    return false;
}

void EntryTableModel::refresh()
{
    // The page always has 25 rows: a reset would drop the row buttons of the view.
    emit dataChanged(index(0, 0), index(model::kRowsPerPage - 1, ColCount - 1));
}

} // namespace tq::gui
