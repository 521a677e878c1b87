// SPDX-License-Identifier: GPL-3.0-or-later
#include "pick_list.h"

#include "entry_table_model.h"

#include <QKeyEvent>
#include <QMimeData>

namespace tq::gui {

PickList::PickList(QWidget* parent) : QListWidget(parent)
{
    setObjectName("lstInputTypes");
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
        if (item && !item->text().isEmpty() && onAdd)
            onAdd();
    });
}

void PickList::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (onAdd)
            onAdd();
        return;
    case Qt::Key_Space:
        if (onPreview)
            onPreview();
        return;
    case Qt::Key_Escape:
        if (onEscape)
            onEscape();
        return;
    default:
        QListWidget::keyPressEvent(event);
    }
}

QStringList PickList::mimeTypes() const
{
    return {EntryTableModel::kTypeMime};
}

QMimeData* PickList::mimeData(const QList<QListWidgetItem*>& items) const
{
    if (items.isEmpty())
        return nullptr;
    auto* md = new QMimeData;
    md->setData(EntryTableModel::kTypeMime, QByteArray::number(row(items.first())));
    return md;
}

} // namespace tq::gui
