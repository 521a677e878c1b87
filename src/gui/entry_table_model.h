// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/entry_store.h"

#include <QAbstractTableModel>
#include <functional>

namespace tq::gui {

/// A view of one Page of the Entry store: columns reference number, Clear,
/// Input Type, attribute text, Edit. The store is the state; this model
/// copies nothing.
class EntryTableModel : public QAbstractTableModel
{
    Q_OBJECT
  public:
    enum Column { ColNumber, ColClear, ColType, ColText, ColEdit, ColCount };
    static constexpr const char* kRowMime = "application/x-tarnquill-row";
    static constexpr const char* kTypeMime = "application/x-tarnquill-type";

    EntryTableModel(model::EntryStore& store, int page, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(
        const QMimeData* data, Qt::DropAction action, int row, int column, const QModelIndex& parent) const override;
    bool
    dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column, const QModelIndex& parent) override;
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction | Qt::MoveAction; }
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

    /// Tells the views that every row may have changed in the store.
    void refresh();
    int page() const { return m_page; }

    /// Called on a drop onto a row: (target row, dragged source row or -1 for
    /// the pick list, pick-list index or -1).
    std::function<void(int targetRow, int sourceRow, int pickIndex)> onDrop;
    /// Called after the user changed a reference number.
    std::function<void(int row)> onNumberChanged;
    bool toolTips = true;

  private:
    model::EntryStore& m_store;
    int m_page;
};

} // namespace tq::gui
