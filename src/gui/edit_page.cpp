// SPDX-License-Identifier: GPL-3.0-or-later
#include "edit_page.h"

#include "busy_cursor.h"
#include "edit_window.h"
#include "model/input_types.h"
#include "model/internal_error.h"
#include "model/text_ops.h"
#include "qt_text.h"
#include "session.h"
#include "shell/preview.h"
#include "shell/quiet_port.h"
#include "swatch.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStringListModel>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineView>

namespace tq::gui {

namespace {

// the pause after the last key before the live preview follows
constexpr int kLiveDelayMs = 150;

/// Copies what the value widgets hold into the rows of `st`.
void ReadValuesInto(const QList<QWidget*>& values, shell::EditState& st)
{
    for (int row = 0; row < values.size(); ++row) {
        auto& f = st.fields[static_cast<size_t>(row)];
        if (auto* edit = qobject_cast<QLineEdit*>(values[row]))
            f.Value = FromQ(edit->text());
        else if (auto* combo = qobject_cast<QComboBox*>(values[row]))
            f.Value = FromQ(combo->currentText());
    }
}

bool IsDriveFolderKey(const std::string& key)
{
    return model::EqualsNoCase(model::Trim(key), "DRIVE FOLDER PATH");
}

bool IsPullDown(shell::FieldKind k)
{
    return k == shell::FieldKind::NumberList || k == shell::FieldKind::AlignList || k == shell::FieldKind::LoopList ||
           k == shell::FieldKind::OnOffList || k == shell::FieldKind::YesNoList;
}

} // namespace

EditPage::EditPage(Session& session, UiPort& ui, QWidget* parent) : QWidget(parent), m_session(session), m_ui(ui)
{
    setObjectName("EditPage");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 8);

    auto* bar = new QMenuBar(this);
    bar->setObjectName("MenuBar");
    bar->setNativeMenuBar(false);
    auto add = [&](const QString& name, const QString& caption, auto slot) {
        QAction* a = bar->addAction(caption);
        a->setObjectName(name);
        connect(a, &QAction::triggered, this, slot);
        return a;
    };
    add("Abort", "&Abort", [this] { abortPage(); });
    add("Preview", "&Preview", [this] { previewPage(); });
    m_exitPreview = add("ExitPreview", "Exit Pre&view", [this] { exitPreview(); });
    m_exitPreview->setVisible(false);
    add("Exit", "E&xit", [this] { exitPage(); });
    add("HelpPage", "&Help", [this] { shell::ShowPageHelp(m_ui, m_state); });
    layout->setMenuBar(bar);

    m_caption = new QLabel;
    m_caption->setObjectName("lblEditCaption");
    m_caption->setStyleSheet("font-size: 16px; font-weight: 600; color: #1f4e79;");
    m_caption->setWordWrap(true);
    m_liveSwitch = new QCheckBox("Live preview");
    m_liveSwitch->setObjectName("LivePreviewSwitch");
    m_liveSwitch->setChecked(true);
    m_liveSwitch->setToolTip("Shows the Entry beside its rows as you type");
    auto* head = new QHBoxLayout;
    head->addWidget(m_caption, 1);
    head->addWidget(m_liveSwitch);
    layout->addLayout(head);

    m_scroll = new QScrollArea;
    m_scroll->setWidgetResizable(true);
    m_rowsHost = new QWidget;
    m_grid = new QGridLayout(m_rowsHost);
    m_grid->setColumnStretch(1, 1);
    m_grid->setHorizontalSpacing(10);
    m_grid->setVerticalSpacing(4);
    m_scroll->setWidget(m_rowsHost);

    // The rows and, beside them, the Entry as the rows make it now. The pane's
    // browser is made when the page first opens.
    m_livePane = new QWidget;
    m_livePane->setObjectName("LivePreviewPane");
    m_livePane->setMinimumWidth(260);
    auto* liveLayout = new QVBoxLayout(m_livePane);
    liveLayout->setContentsMargins(0, 0, 0, 0);
    auto* split = new QSplitter(Qt::Horizontal);
    m_split = split;
    split->setObjectName("EditSplit");
    split->setChildrenCollapsible(false);
    split->addWidget(m_scroll);
    split->addWidget(m_livePane);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 2);
    layout->addWidget(split, 1);
    m_liveTimer = new QTimer(this);
    m_liveTimer->setSingleShot(true);
    m_liveTimer->setInterval(kLiveDelayMs);
    connect(m_liveTimer, &QTimer::timeout, this, [this] { refreshLivePreview(); });
    connect(m_liveSwitch, &QCheckBox::toggled, this, [this](bool on) { setLivePreviewShown(on); });

    m_window = new EditWindow(this);
    m_window->hide();
    m_window->onExit = [this](const QString& text) {
        const int row = m_window->row();
        auto& f = m_state.fields[static_cast<size_t>(row)];
        f.Value = shell::WindowToValue(f.Key, FromQ(text));
        paintRow(row);
        m_window->hide();
        m_scroll->show();
        if (onCaptionChanged)
            onCaptionChanged();
    };
    m_window->onPreview = [this](const QString& text) {
        const int row = m_window->row();
        readValues();
        BusyCursor busy;
        const std::string file = shell::PreviewAttribute(m_session, m_ui, m_state, row, FromQ(text));
        paintRow(row);
        if (!file.empty())
            m_window->showPreview(ToQ(file));
    };
    layout->addWidget(m_window, 1);
}

void EditPage::open(int page, int row, const QString& selectKey)
{
    try {
        m_state = shell::OpenEditPage(m_session, m_ui, page, row);
    } catch (const model::InternalError& e) {
        m_ui.message(e.what(), "INTERNAL ERROR", Icon::Critical);
        return;
    }
    m_caption->setText(ToQ(m_state.Caption));
    exitPreview();
    m_window->hide();
    buildRows();
    if (livePreviewShown())
        refreshLivePreview();
    const int selected = selectKey.isEmpty() ? -1 : rowOf(selectKey);
    if (selected >= 0) {
        // the build sent the user here: the row at fault is shown coloured
        m_state.failedRow = selected;
        markFailedRow();
    }
}

int EditPage::rowOf(const QString& key) const
{
    for (size_t i = 0; i < m_state.fields.size(); ++i)
        if (ToQ(m_state.fields[i].Key).trimmed().compare(key.trimmed(), Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    return -1;
}

QWidget* EditPage::valueWidget(int row) const
{
    return m_values.value(row);
}

void EditPage::buildRows()
{
    for (auto& widgets : m_rowWidgets)
        for (QWidget* w : widgets)
            delete w;
    m_rowWidgets.clear();
    m_values.clear();
    m_swatches.clear();
    for (size_t i = 0; i < m_state.fields.size(); ++i) {
        const int row = static_cast<int>(i);
        const auto& f = m_state.fields[i];
        QList<QWidget*> widgets;
        auto* label = new QLabel(ToQ(f.Key).trimmed().toUpper());
        label->setObjectName(QString("lblKey%1").arg(row));
        label->setStyleSheet("font-weight: 600;");
        m_grid->addWidget(label, row, 0);
        widgets << label;

        QWidget* value = nullptr;
        QPushButton* action = nullptr;
        if (IsPullDown(f.Kind)) {
            auto* combo = new QComboBox;
            const std::vector<std::string> items = shell::PullDownItems(f);
            const QString listKey = ToQ(items.front() + "|" + items.back() + "|" + std::to_string(items.size()));
            QStringListModel*& list = m_lists[listKey];
            if (!list) {
                QStringList texts;
                texts.reserve(static_cast<qsizetype>(items.size()));
                for (const auto& item : items)
                    texts << ToQ(item);
                list = new QStringListModel(texts, this);
            }
            const QString current = ToQ(std::string(model::Trim(f.Value)));
            int found = static_cast<int>(list->stringList().indexOf(current));
            for (int i = 0; found < 0 && i < list->rowCount(); ++i)
                if (list->stringList().at(i).compare(current, Qt::CaseInsensitive) == 0)
                    found = i;
            if (found >= 0) {
                combo->setModel(list);
                combo->setCurrentIndex(found);
            } else {
                // a value outside the list is shown as it stands, on a list of its own
                QStringList own = list->stringList();
                own.prepend(ToQ(f.Value));
                combo->addItems(own);
                combo->setCurrentIndex(0);
            }
            if (!f.helpChoices.empty()) {
                QStringList choices;
                for (const auto& c : f.helpChoices)
                    choices << ToQ(c);
                combo->setToolTip(choices.join(", "));
            }
            connect(combo, &QComboBox::currentTextChanged, this, [this, row](const QString& text) {
                shell::SetPullDownValue(m_session, m_ui, m_state, row, FromQ(text));
                for (int r = 0; r < m_rowWidgets.size(); ++r)
                    for (QWidget* w : m_rowWidgets[r])
                        w->setVisible(m_state.fields[static_cast<size_t>(r)].visible);
                valueTyped();
            });
            value = combo;
        } else if (IsDriveFolderKey(f.Key)) {
            // the folder can be typed, browsed for, or taken from the Setup page's web folders
            auto* combo = new QComboBox;
            combo->setEditable(true);
            combo->addItems(driveFolderChoices(ToQ(f.Value)));
            combo->setCurrentText(ToQ(f.Value));
            connect(combo, &QComboBox::currentTextChanged, this, [this] { valueTyped(); });
            value = combo;
            action = new QPushButton("Edit");
            action->setObjectName(QString("Edit%1").arg(row));
            connect(action, &QPushButton::clicked, this, [this, row] {
                readValues();
                shell::EditTextField(m_session, m_ui, m_state, row);
                paintRow(row);
            });
        } else {
            auto* edit = new QLineEdit(ToQ(f.Value));
            value = edit;
            connect(edit, &QLineEdit::textChanged, this, [this] { valueTyped(); });
            if (f.Kind == shell::FieldKind::ColorField) {
                edit->setReadOnly(true);
                action = new QPushButton("Change Color");
                action->setObjectName(QString("ChangeColor%1").arg(row));
                action->setContextMenuPolicy(Qt::CustomContextMenu);
                connect(action, &QPushButton::clicked, this, [this, row] {
                    readValues();
                    if (shell::ChangeColor(m_session, m_ui, m_state, row))
                        paintRow(row);
                });
                // the right click clears GLOBAL TEXT COLOR
                connect(action, &QPushButton::customContextMenuRequested, this, [this, row] {
                    shell::ClearGlobalTextColor(m_session, m_ui, m_state, row);
                    paintRow(row);
                });
            } else {
                action = new QPushButton("Edit");
                action->setObjectName(QString("Edit%1").arg(row));
                connect(action, &QPushButton::clicked, this, [this, row] {
                    readValues();
                    if (shell::EditTextField(m_session, m_ui, m_state, row) == shell::EditAction::OpenEditWindow)
                        openEditWindow(row);
                    paintRow(row);
                });
            }
        }
        value->setObjectName(QString("txtValue%1").arg(row));
        QWidget* swatch = nullptr;
        if (f.Kind == shell::FieldKind::ColorField) {
            // the number stays as the format keeps it; the swatch shows what it means
            auto* cell = new QWidget;
            auto* cellLayout = new QHBoxLayout(cell);
            cellLayout->setContentsMargins(0, 0, 0, 0);
            swatch = new QWidget;
            swatch->setObjectName(QString("Swatch%1").arg(row));
            swatch->setFixedSize(40, 22);
            swatch->setAttribute(Qt::WA_StyledBackground);
            cellLayout->addWidget(value, 1);
            cellLayout->addWidget(swatch);
            m_grid->addWidget(cell, row, 1);
            widgets << cell;
        } else {
            m_grid->addWidget(value, row, 1);
            widgets << value;
        }
        m_swatches << swatch;
        m_values << value;
        if (action) {
            m_grid->addWidget(action, row, 2);
            widgets << action;
        }
        auto* help = new QPushButton("Help");
        help->setObjectName(QString("Help%1").arg(row));
        help->setStyleSheet("background-color: #2e8b57; color: white;");
        connect(help, &QPushButton::clicked, this,
                [this, row] { shell::ShowFieldHelp(m_ui, m_state.fields[static_cast<size_t>(row)]); });
        m_grid->addWidget(help, row, 3);
        widgets << help;
        m_rowWidgets << widgets;
        for (QWidget* w : widgets)
            w->setVisible(f.visible);
        paintRow(row);
    }
    m_grid->setRowStretch(static_cast<int>(m_state.fields.size()), 1);
}

void EditPage::paintRow(int row)
{
    const auto& f = m_state.fields[static_cast<size_t>(row)];
    QWidget* w = m_values.value(row);
    if (!w)
        return;
    if (auto* edit = qobject_cast<QLineEdit*>(w)) {
        if (edit->text() != ToQ(f.Value))
            edit->setText(ToQ(f.Value));
        if (f.Kind == shell::FieldKind::ColorField) {
            const QColor c = CoreColor(shell::FieldColor(f));
            const QColor text = c.lightness() < 128 ? Qt::white : Qt::black;
            edit->setStyleSheet(QString("QLineEdit { background-color: %1; color: %2; }").arg(c.name(), text.name()));
            if (QWidget* swatch = m_swatches.value(row))
                PaintSwatch(swatch, shell::FieldColor(f));
            return;
        }
    } else if (auto* combo = qobject_cast<QComboBox*>(w); combo && combo->isEditable()) {
        if (combo->currentText() != ToQ(f.Value))
            combo->setCurrentText(ToQ(f.Value));
    }
    w->setStyleSheet(f.failed ? "background-color: #ff0000; color: #ffffff;" : "");
}

void EditPage::readValues()
{
    ReadValuesInto(m_values, m_state);
}

void EditPage::markFailedRow()
{
    const int row = m_state.failedRow;
    if (row < 0 || row >= m_values.size())
        return;
    m_state.fields[static_cast<size_t>(row)].failed = true;
    for (int r = 0; r < m_values.size(); ++r)
        paintRow(r);
    QWidget* w = m_values[row];
    m_scroll->ensureWidgetVisible(w);
    w->setFocus();
    if (auto* edit = qobject_cast<QLineEdit*>(w))
        edit->selectAll();
    else if (auto* combo = qobject_cast<QComboBox*>(w); combo && combo->lineEdit())
        combo->lineEdit()->selectAll();
}

void EditPage::exitPage()
{
    readValues();
    if (!shell::ExitEditPage(m_session, m_ui, m_state)) {
        markFailedRow();
        return;
    }
    if (onLeft)
        onLeft();
}

void EditPage::abortPage()
{
    readValues();
    if (shell::AbortEditPage(m_session, m_ui, m_state) && onLeft)
        onLeft();
}

void EditPage::previewPage()
{
    readValues();
    std::string file;
    {
        BusyCursor busy;
        file = shell::PreviewEntry(m_session, m_ui, m_state);
    }
    for (int r = 0; r < m_values.size(); ++r)
        paintRow(r);
    if (!file.empty())
        showBrowser(ToQ(file));
}

void EditPage::showBrowser(const QString& file)
{
    if (!m_web) {
        m_web = new QWebEngineView;
        m_web->setObjectName("EditPreview");
        static_cast<QVBoxLayout*>(layout())->addWidget(m_web, 1);
    }
    m_web->setUrl(QUrl::fromLocalFile(file));
    m_scroll->hide();
    m_window->hide();
    m_web->show();
    m_exitPreview->setVisible(true);
}

void EditPage::exitPreview()
{
    if (m_web)
        m_web->hide();
    m_exitPreview->setVisible(false);
    if (m_window->isHidden())
        m_scroll->show();
}

void EditPage::openEditWindow(int row)
{
    const auto& f = m_state.fields[static_cast<size_t>(row)];
    m_window->open(row, ToQ(f.Key).trimmed().toUpper(), ToQ(shell::ValueToWindow(f.Key, f.Value)),
                   m_session.store.state.ProjectMode == model::Mode::Survey);
    m_scroll->hide();
    if (m_web)
        m_web->hide();
    m_window->show();
    if (onCaptionChanged)
        onCaptionChanged();
}

QString EditPage::caption() const
{
    return m_window->isHidden() ? QStringLiteral("EDIT PAGE") : QStringLiteral("EDIT WINDOW");
}

QStringList EditPage::driveFolderChoices(const QString& current) const
{
    QStringList choices{current, ToQ(m_session.settings.DefaultDriveFolder)};
    for (const auto& r : m_session.setup.rows)
        if (!model::Trim(r.WebFolderPath).empty())
            choices << ToQ(r.WebFolderPath);
    choices.removeDuplicates();
    return choices;
}

void EditPage::valueTyped()
{
    if (livePreviewShown())
        m_liveTimer->start(); // a later key starts the pause again
}

void EditPage::setLivePreviewShown(bool on)
{
    if (m_liveSwitch->isChecked() != on)
        m_liveSwitch->setChecked(on);
    m_livePane->setVisible(on);
    if (on && !m_state.fields.empty())
        refreshLivePreview();
    else
        m_liveTimer->stop();
}

bool EditPage::livePreviewShown() const
{
    return m_liveSwitch->isChecked();
}

void EditPage::refreshLivePreview()
{
    // The rows as they are typed, on a copy: nothing is committed, and a row
    // that does not pass its check yet leaves the last good page in the pane.
    shell::EditState typed = m_state;
    ReadValuesInto(m_values, typed);
    shell::QuietPort quiet;
    const std::string file = shell::PreviewEntry(m_session, quiet, typed);
    if (file.empty())
        return;
    QFile page(ToQ(file));
    if (!page.open(QIODevice::ReadOnly))
        return;
    if (!m_live) {
        m_live = new QWebEngineView;
        m_live->setObjectName("LivePreview");
        m_live->setFocusPolicy(Qt::NoFocus);
        m_livePane->layout()->addWidget(m_live);
        connect(m_live, &QWebEngineView::loadFinished, this, [this] {
            if (onLivePainted)
                onLivePainted();
        });
    }
    // the page is given as it stands, so that the pane never shows a file half written
    m_live->setHtml(QString::fromUtf8(page.readAll()), QUrl::fromLocalFile(ToQ(file)));
}

void EditPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // The rows would take all the room the pane leaves at its least: at the
    // first showing the rows get three fifths and the pane two.
    const int width = m_split->width();
    if (!m_splitPlaced && width > 0) {
        m_split->setSizes({width * 3 / 5, width - width * 3 / 5});
        m_splitPlaced = true;
    }
}

} // namespace tq::gui
