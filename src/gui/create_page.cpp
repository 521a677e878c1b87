// SPDX-License-Identifier: GPL-3.0-or-later
#include "create_page.h"

#include "entry_table_model.h"
#include "model/entry_store.h"
#include "pick_list.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebEngineView>
#include <algorithm>

namespace tq::gui {

namespace {

QLabel* Hint(const QString& text)
{
    auto* l = new QLabel(text);
    l->setWordWrap(true);
    l->setStyleSheet("color: #555;");
    return l;
}

} // namespace

CreatePage::CreatePage(model::EntryStore& store, int page, const CommandHandler& handler, QWidget* parent)
    : QWidget(parent), m_store(store), m_page(page)
{
    setObjectName(QString("Page%1").arg(page));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 8, 14, 10);
    layout->setSpacing(8);
    layout->setMenuBar(BuildMenuBar(page == 1 ? MenuKind::CreatePage1 : MenuKind::CreatePageN, this, handler));

    auto* top = new QHBoxLayout;
    m_heading = new QLabel;
    m_heading->setObjectName("lblPageHeading");
    m_heading->setStyleSheet("font-size: 18px; font-weight: 600;");
    auto* status = new QVBoxLayout;
    status->setSpacing(0);
    m_mode = new QLabel;
    m_mode->setObjectName("lblActive");
    m_mode->setAlignment(Qt::AlignRight);
    m_mode->setStyleSheet("color: #1f4e79; font-weight: 600;");
    m_file = new QLabel;
    m_file->setObjectName("lblFile");
    m_file->setAlignment(Qt::AlignRight);
    m_file->setStyleSheet("color: #555;");
    status->addWidget(m_mode);
    status->addWidget(m_file);
    top->addWidget(m_heading);
    top->addStretch();
    top->addLayout(status);
    layout->addLayout(top);

    auto* split = m_split = new QSplitter(Qt::Horizontal);
    split->setChildrenCollapsible(false);
    auto* left = new QWidget;
    auto* ll = new QVBoxLayout(left);
    ll->setContentsMargins(0, 0, 4, 0);
    auto* pickHead = new QLabel("Input Type Descriptions\nTo make changes, Click on the Edit Button");
    pickHead->setObjectName("lblPickHeading");
    pickHead->setStyleSheet("font-weight: 600;");
    m_pick = new PickList;
    m_pick->setMinimumWidth(220);
    ll->addWidget(pickHead);
    ll->addWidget(m_pick, 1);
    ll->addWidget(Hint("To add, Highlight and Press Enter, Double Click or Drag/Drop into the Input Types Column"));
    ll->addWidget(Hint("Highlight and hit the Spacebar to Preview the Input Types above"));
    m_background = new QPushButton("Background Picture");
    m_background->setObjectName("BackgroundPicture");
    connect(m_background, &QPushButton::clicked, this, [handler] { handler("BackgroundPicture"); });
    ll->addWidget(m_background);
    split->addWidget(left);

    auto* right = new QWidget;
    auto* rl = new QVBoxLayout(right);
    rl->setContentsMargins(4, 0, 0, 0);
    auto* buttons = new QHBoxLayout;
    m_order = new QPushButton("Order");
    m_order->setObjectName("Order");
    m_rowsHeading = new QLabel;
    m_rowsHeading->setObjectName("lblRowsHeading");
    m_rowsHeading->setStyleSheet("font-weight: 600;");
    m_clearAll = new QPushButton("CLR All");
    m_clearAll->setObjectName("ClearAll");
    buttons->addWidget(m_order);
    buttons->addSpacing(12);
    buttons->addWidget(m_rowsHeading);
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
    m_table->setDragDropOverwriteMode(true);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::AnyKeyPressed);
    // Tab leaves the table for the next control instead of walking its cells
    m_table->setTabKeyNavigation(false);
    m_table->installEventFilter(this);
    m_table->setStyleSheet("QTableView#tblRows::item:selected { background: #cfe3f5; color: black; }"
                           "QTableView#tblRows:focus { border: 2px solid #2e86ab; }");
    m_table->verticalHeader()->setVisible(false);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(30);
    QHeaderView* h = m_table->horizontalHeader();
    h->setSectionResizeMode(EntryTableModel::ColNumber, QHeaderView::Fixed);
    h->setSectionResizeMode(EntryTableModel::ColClear, QHeaderView::Fixed);
    h->setSectionResizeMode(EntryTableModel::ColType, QHeaderView::Interactive);
    h->setSectionResizeMode(EntryTableModel::ColText, QHeaderView::Stretch);
    h->setSectionResizeMode(EntryTableModel::ColEdit, QHeaderView::Fixed);
    m_table->setColumnWidth(EntryTableModel::ColNumber, 52);
    m_table->setColumnWidth(EntryTableModel::ColClear, 64);
    m_table->setColumnWidth(EntryTableModel::ColType, 250);
    m_table->setColumnWidth(EntryTableModel::ColEdit, 64);
    for (int row = 0; row < model::kRowsPerPage; ++row) {
        // the SetupEntry has no clear command
        if (!(page == 1 && row == 0)) {
            auto* clear = new QPushButton("Clear");
            clear->setObjectName(QString("Clear%1").arg(row));
            clear->setFocusPolicy(Qt::NoFocus);
            m_table->setIndexWidget(m_model->index(row, EntryTableModel::ColClear), clear);
            connect(clear, &QPushButton::clicked, this, [this, row] {
                if (onClear)
                    onClear(m_page, row);
            });
        }
        auto* edit = new QPushButton("Edit");
        edit->setObjectName(QString("Edit%1").arg(row));
        edit->setFocusPolicy(Qt::NoFocus);
        m_table->setIndexWidget(m_model->index(row, EntryTableModel::ColEdit), edit);
        connect(edit, &QPushButton::clicked, this, [this, row] {
            if (onEdit)
                onEdit(m_page, row);
        });
    }
    rl->addWidget(m_table, 1);
    split->addWidget(right);

    // The quick preview pane: its browser is made on the first preview, so
    // that the start of the program does not wait for the browser engine.
    m_previewPane = new QFrame;
    m_previewPane->setObjectName("QuickPreviewPane");
    m_previewPane->setFrameShape(QFrame::StyledPanel);
    auto* pl = new QVBoxLayout(m_previewPane);
    pl->setContentsMargins(6, 6, 6, 6);
    // two buttons over the preview: the first gives the focus back to the pick list
    auto* previewHint =
        new QPushButton("Highlight and click on SPACEBAR to preview any selection. ESC key to Exit Preview");
    previewHint->setObjectName("cmdPreviewHint");
    connect(previewHint, &QPushButton::clicked, this, [this] { m_pick->setFocus(); });
    auto* previewExit = new QPushButton("ESC TO EXIT OR CLICK HERE");
    previewExit->setObjectName("cmdExitPreview");
    previewExit->setToolTip("ESC to exit Quick Preview");
    pl->addWidget(previewHint);
    pl->addWidget(previewExit);
    // the pane is never narrower than its buttons' words
    m_previewPane->setMinimumWidth(previewHint->sizeHint().width() + 12);
    m_previewPane->hide();
    split->addWidget(m_previewPane);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 3);
    split->setStretchFactor(2, 2);
    layout->addWidget(split, 1);

    m_pick->onAdd = [this] {
        if (onAdd)
            onAdd(m_page, selectedPickIndex());
    };
    m_pick->onPreview = [this] {
        if (onQuickPreview)
            onQuickPreview(m_page, selectedPickIndex());
    };
    m_pick->onEscape = [this] {
        if (onEscape)
            onEscape(m_page);
    };
    connect(m_pick, &QListWidget::itemClicked, this, [this] { hidePreview(); });
    connect(previewExit, &QPushButton::clicked, this, [this] {
        if (onEscape)
            onEscape(m_page);
    });
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

bool CreatePage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_table)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn && !m_table->selectionModel()->hasSelection())
        selectRow(std::max(0, m_table->currentIndex().row()));
    if (event->type() != QEvent::KeyPress) // an open editor gets its keys itself
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const int row = m_table->currentIndex().row();
    if (row < 0)
        return false;
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && onEdit) {
        onEdit(m_page, row);
        return true;
    }
    // as the row's Clear button: none on the SetupEntry, none on an empty row
    QWidget* clear = m_table->indexWidget(m_model->index(row, EntryTableModel::ColClear));
    if (key == Qt::Key_Delete && onClear && clear && clear->isEnabled()) {
        onClear(m_page, row);
        return true;
    }
    return false;
}

int CreatePage::selectedPickIndex() const
{
    return m_pick->currentItem() && m_pick->currentItem()->isSelected() ? m_pick->currentRow() : -1;
}

void CreatePage::setPickList(const QStringList& names)
{
    QStringList shown;
    for (int i = 0; i < m_pick->count(); ++i)
        shown << m_pick->item(i)->text();
    if (shown == names)
        return;
    int keep = m_pick->currentRow();
    m_pick->clear();
    m_pick->addItems(names);
    if (keep >= 0 && keep < m_pick->count())
        m_pick->setCurrentRow(keep);
}

void CreatePage::setCaptions(const QString& heading,
                             const QString& modeText,
                             const QString& fileText,
                             const QString& mode)
{
    m_heading->setText(heading);
    m_mode->setText(modeText);
    m_file->setText(fileText);
    m_rowsHeading->setText("Questions added to your " + mode.toLower() + "\nInput Types");
}

void CreatePage::refresh()
{
    m_model->refresh();
    const auto& rows = m_store.pages[static_cast<size_t>(m_page - 1)];
    for (int row = 0; row < model::kRowsPerPage; ++row) {
        const auto& e = rows[static_cast<size_t>(row)];
        if (auto* edit = m_table->indexWidget(m_model->index(row, EntryTableModel::ColEdit)))
            edit->setEnabled(e.EditEnabled);
        if (auto* clear = m_table->indexWidget(m_model->index(row, EntryTableModel::ColClear)))
            clear->setEnabled(!QString::fromStdString(e.InputTypeName).trimmed().isEmpty());
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
    m_background->setToolTip(on ? "Click here to add or remove a background picture to your Form or Survey"
                                : QString());
    for (int row = 0; row < model::kRowsPerPage; ++row)
        if (auto* edit = m_table->indexWidget(m_model->index(row, EntryTableModel::ColEdit)))
            edit->setToolTip(on ? "Click on the Edit Button to make changes" : QString());
}

void CreatePage::selectRow(int row)
{
    if (row < 0 || row >= model::kRowsPerPage)
        return;
    m_table->selectRow(row);
    m_table->scrollTo(m_model->index(row, EntryTableModel::ColType));
}

void CreatePage::focusFirstRow()
{
    selectRow(0);
    m_table->setFocus();
}

void CreatePage::focusPickList()
{
    if (m_pick->count() > 0 && m_pick->currentRow() < 0)
        m_pick->setCurrentRow(0);
    m_pick->setFocus();
}

void CreatePage::showPreview(const QString& file)
{
    if (!m_web) {
        m_web = new QWebEngineView;
        m_web->setObjectName("QuickPreview");
        m_web->setFocusPolicy(Qt::NoFocus);
        static_cast<QVBoxLayout*>(m_previewPane->layout())->insertWidget(0, m_web, 1);
    }
    m_web->setUrl(QUrl::fromLocalFile(file));
    if (m_previewPane->isHidden()) {
        // the rows keep the larger share beside the pane
        const int total = m_split->width();
        const int left = m_split->sizes().value(0);
        const int pane = total * 2 / 5;
        m_split->setSizes({left, total - left - pane, pane});
    }
    m_previewPane->show();
    // arrow keys and Space go on from the pick list
    m_pick->setFocus();
}

void CreatePage::hidePreview()
{
    m_previewPane->hide();
}

bool CreatePage::previewVisible() const
{
    return !m_previewPane->isHidden();
}

} // namespace tq::gui
