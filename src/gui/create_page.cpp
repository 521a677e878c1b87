// SPDX-License-Identifier: GPL-3.0-or-later
#include "create_page.h"

#include "entry_table_model.h"
#include "model/entry_store.h"
#include "pick_list.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace tq::gui {

CreatePage::CreatePage(model::EntryStore& store, int page, const CommandHandler& handler, QWidget* parent)
    : QWidget(parent), m_store(store), m_page(page)
{
    setObjectName(QString("Page%1").arg(page));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setMenuBar(BuildMenuBar(page == 1 ? MenuKind::CreatePage1 : MenuKind::CreatePageN, this, handler));

    auto* top = new QHBoxLayout;
    m_heading = new QLabel;
    m_heading->setObjectName("lblPageHeading");
    m_heading->setStyleSheet("font-size: 18px; font-weight: 600;");
    m_mode = new QLabel;
    m_mode->setObjectName("lblActive");
    m_mode->setStyleSheet("color: #1f4e79; font-weight: 600;");
    m_file = new QLabel;
    m_file->setObjectName("lblFile");
    m_file->setStyleSheet("color: #555;");
    top->addWidget(m_heading);
    top->addStretch();
    top->addWidget(m_mode);
    top->addSpacing(16);
    top->addWidget(m_file);
    layout->addLayout(top);

    auto* split = new QSplitter(Qt::Horizontal);
    auto* left = new QWidget;
    auto* ll = new QVBoxLayout(left);
    ll->setContentsMargins(0, 0, 0, 0);
    auto* pickHead = new QLabel("Input Type Descriptions\nTo make changes, Click on the Edit Button");
    pickHead->setObjectName("lblPickHeading");
    pickHead->setStyleSheet("font-weight: 600;");
    m_pick = new PickList;
    auto* hint = new QLabel("To add, Highlight and Press Enter, Double Click or Drag/Drop into the Input Types Column");
    hint->setWordWrap(true);
    hint->setStyleSheet("color: #555;");
    auto* previewHint = new QLabel("Highlight and hit the Spacebar to Preview the Input Types above");
    previewHint->setWordWrap(true);
    previewHint->setStyleSheet("color: #555;");
    ll->addWidget(pickHead);
    ll->addWidget(m_pick, 1);
    ll->addWidget(hint);
    ll->addWidget(previewHint);
    split->addWidget(left);

    auto* right = new QWidget;
    auto* rl = new QVBoxLayout(right);
    rl->setContentsMargins(0, 0, 0, 0);
    auto* buttons = new QHBoxLayout;
    m_order = new QPushButton("Order");
    m_order->setObjectName("Order");
    m_clearAll = new QPushButton("CLR All");
    m_clearAll->setObjectName("ClearAll");
    buttons->addWidget(m_order);
    buttons->addStretch();
    buttons->addWidget(m_clearAll);
    rl->addLayout(buttons);

    m_model = new EntryTableModel(store, page, this);
    m_table = new QTableView;
    m_table->setObjectName("tblRows");
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setDragEnabled(true);
    m_table->setAcceptDrops(true);
    m_table->setDropIndicatorShown(true);
    m_table->setDragDropMode(QAbstractItemView::DragDrop);
    m_table->setDefaultDropAction(Qt::CopyAction);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::AnyKeyPressed);
    m_table->verticalHeader()->setVisible(false);
    m_table->verticalHeader()->setDefaultSectionSize(26);
    QHeaderView* h = m_table->horizontalHeader();
    h->setSectionResizeMode(EntryTableModel::ColNumber, QHeaderView::Fixed);
    h->setSectionResizeMode(EntryTableModel::ColClear, QHeaderView::Fixed);
    h->setSectionResizeMode(EntryTableModel::ColType, QHeaderView::Interactive);
    h->setSectionResizeMode(EntryTableModel::ColText, QHeaderView::Stretch);
    h->setSectionResizeMode(EntryTableModel::ColEdit, QHeaderView::Fixed);
    m_table->setColumnWidth(EntryTableModel::ColNumber, 48);
    m_table->setColumnWidth(EntryTableModel::ColClear, 56);
    m_table->setColumnWidth(EntryTableModel::ColType, 240);
    m_table->setColumnWidth(EntryTableModel::ColEdit, 56);
    for (int row = 0; row < model::kRowsPerPage; ++row) {
        auto* clear = new QPushButton("Clear");
        clear->setObjectName(QString("Clear%1").arg(row));
        auto* edit = new QPushButton("Edit");
        edit->setObjectName(QString("Edit%1").arg(row));
        m_table->setIndexWidget(m_model->index(row, EntryTableModel::ColClear), clear);
        m_table->setIndexWidget(m_model->index(row, EntryTableModel::ColEdit), edit);
        connect(clear, &QPushButton::clicked, this, [this, row] {
            if (onClear)
                onClear(m_page, row);
        });
        connect(edit, &QPushButton::clicked, this, [this, row] {
            if (onEdit)
                onEdit(m_page, row);
        });
    }
    rl->addWidget(m_table, 1);
    split->addWidget(right);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 3);
    layout->addWidget(split, 1);

    m_pick->onAdd = [this] {
        if (onAdd)
            onAdd(m_page, m_pick->currentItem() ? m_pick->currentItem()->data(Qt::UserRole).toInt() : -1);
    };
    m_pick->onPreview = [this] {
        if (onQuickPreview && m_pick->currentItem())
            onQuickPreview(m_page, m_pick->currentItem()->data(Qt::UserRole).toInt());
    };
    m_pick->onEscape = [this] {
        if (onEscape)
            onEscape(m_page);
    };
    m_model->onDrop = [this](int target, int source, int pick) {
        if (onDrop)
            onDrop(m_page, target, source, pick);
    };
    m_model->onNumberChanged = [this](int row) {
        if (onNumberChanged)
            onNumberChanged(m_page, row);
    };
    connect(m_order, &QPushButton::clicked, this, [this] {
        if (onOrder)
            onOrder(m_page);
    });
    connect(m_clearAll, &QPushButton::clicked, this, [this] {
        if (onClearAll)
            onClearAll(m_page);
    });
    setToolTipsShown(true);
}

void CreatePage::setPickList(const QStringList& names, const QList<int>& indexes)
{
    int keep = m_pick->currentRow();
    m_pick->clear();
    for (int i = 0; i < names.size(); ++i) {
        auto* item = new QListWidgetItem(names[i], m_pick);
        item->setData(Qt::UserRole, indexes.value(i, i));
    }
    if (keep >= 0 && keep < m_pick->count())
        m_pick->setCurrentRow(keep);
}

void CreatePage::setCaptions(const QString& heading, const QString& modeText, const QString& fileText)
{
    m_heading->setText(heading);
    m_mode->setText(modeText);
    m_file->setText(fileText);
}

void CreatePage::refresh()
{
    m_model->refresh();
    const auto& rows = m_store.pages[static_cast<size_t>(m_page - 1)];
    for (int row = 0; row < model::kRowsPerPage; ++row) {
        const auto& e = rows[static_cast<size_t>(row)];
        if (auto* edit = m_table->indexWidget(m_model->index(row, EntryTableModel::ColEdit)))
            edit->setEnabled(e.EditEnabled);
        // the SetupEntry has no clear command
        if (auto* clear = m_table->indexWidget(m_model->index(row, EntryTableModel::ColClear)))
            clear->setVisible(!(m_page == 1 && row == 0));
    }
}

void CreatePage::setToolTipsShown(bool on)
{
    m_model->toolTips = on;
    m_order->setToolTip(on ? "To change the order of the Input Types below, change the numbers and then click here"
                           : QString());
    m_clearAll->setToolTip(on ? "To clear all input types that were added, click here or hit the clear button below "
                                "to clear individual added input types"
                              : QString());
    for (int row = 0; row < model::kRowsPerPage; ++row)
        if (auto* edit = m_table->indexWidget(m_model->index(row, EntryTableModel::ColEdit)))
            edit->setToolTip(on ? "Click on the Edit Button to make changes" : QString());
}

} // namespace tq::gui
