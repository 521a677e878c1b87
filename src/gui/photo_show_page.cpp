// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_show_page.h"

#include "menus.h"
#include "qt_text.h"
#include "shell/external_tools.h"
#include "show/show_build.h"
#include "show/show_commands.h"
#include "show/show_file.h"
#include "swatch.h"

#include <QComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tq::gui {

namespace {

template <size_t N> QStringList ListOf(const std::array<std::string_view, N>& items)
{
    QStringList out;
    for (auto item : items)
        out << ToQ(item);
    return out;
}

QLabel* FieldLabel(std::string_view text)
{
    auto* label = new QLabel(ToQ(text));
    label->setWordWrap(true);
    label->setStyleSheet("font-weight: 600; color: #1f3b57;");
    return label;
}

// The Recent entry's slot: History1..History15, the tenth named History100.
int RecentSlot(const QString& name)
{
    if (name == "History100")
        return 10;
    if (!name.startsWith("History") || name == "History10")
        return 0;
    bool ok = false;
    int slot = name.mid(7).toInt(&ok);
    return ok && slot >= 1 && slot <= store::kMenuSlots ? slot : 0;
}

QString RecentName(int slot)
{
    return slot == 10 ? QString("History100") : QString("History%1").arg(slot);
}

} // namespace

PhotoShowPage::PhotoShowPage(Session& session, UiPort& ui, QWidget* parent)
    : QWidget(parent), m_session(session), m_ui(ui)
{
    setObjectName("PhotoShowPage");
    auto handler = [this](const QString& name) { runCommand(name); };

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);

    auto* bar = new QMenuBar(this);
    bar->setObjectName("MenuBar");
    bar->setNativeMenuBar(false);
    QMenu* file = bar->addMenu("&File");
    file->setObjectName("File");
    AddCommand(file, "Save", "Save", handler);
    AddCommand(file, "Open", "Open", handler);
    m_recent = file->addMenu("&Recent");
    m_recent->setObjectName("Recent");
    m_recent->menuAction()->setObjectName("RecentMenu");
    for (int slot = 1; slot <= store::kMenuSlots; ++slot)
        AddCommand(m_recent, RecentName(slot), "Not Assigned", handler);
    for (const auto& [name, caption] : {std::pair{"Help", "&Help"}, std::pair{"Exit", "E&xit"}}) {
        QAction* a = bar->addAction(caption);
        a->setObjectName(name);
        connect(a, &QAction::triggered, this, [this, n = QString(name)] { runCommand(n); });
    }
    outer->setMenuBar(bar);

    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    outer->addWidget(scroll, 1);
    m_form = new QWidget;
    m_form->setObjectName("PhotoShowForm");
    scroll->setWidget(m_form);
    auto* main = new QVBoxLayout(m_form);
    main->setContentsMargins(32, 20, 32, 20);
    main->setSpacing(14);

    auto* title = new QLabel(ToQ(show::kShowPageTitle));
    title->setObjectName("ShowPageTitle");
    title->setStyleSheet("font-size: 22px; font-weight: 700; color: #1f4e79;");
    auto* head1 = new QLabel(ToQ(show::kShowPageHead1));
    auto* head2 = new QLabel(ToQ(show::kShowPageHead2));
    for (auto* head : {head1, head2})
        head->setStyleSheet("color: #333; font-size: 13px;");
    main->addWidget(title);
    main->addWidget(head1);
    main->addWidget(head2);

    auto* paths = new QGroupBox("Files and folders");
    auto* pathsLayout = new QVBoxLayout(paths);
    pathsLayout->setSpacing(4);
    main->addWidget(paths);
    auto field = [&](const QString& name, std::string_view label, std::string show::ShowSettings::*member) {
        pathsLayout->addWidget(FieldLabel(label));
        QLineEdit* edit = addField(name, label, member);
        pathsLayout->addWidget(edit);
        pathsLayout->addSpacing(6);
    };
    field("HomeFile", show::kHomeFileLabel, &show::ShowSettings::HomeFile);
    field("HomeLinkText", show::kHomeLinkTextLabel, &show::ShowSettings::HomeLinkText);
    field("ImageFolder", show::kImageFolderLabel, &show::ShowSettings::ImageFolder);
    field("WebImageFolder", show::kWebImageFolderLabel, &show::ShowSettings::WebImageFolder);
    field("ShowFileName", show::kShowFileNameLabel, &show::ShowSettings::ShowFileName);

    auto* look = new QGroupBox("The show");
    auto* grid = new QGridLayout(look);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    main->addWidget(look);
    int cell = 0;
    auto place = [&](std::string_view label, QWidget* w) {
        const int row = cell / 2;
        const int col = (cell % 2) * 2;
        grid->addWidget(FieldLabel(label), row, col);
        grid->addWidget(w, row, col + 1);
        ++cell;
    };
    auto list = [&](const QString& name, std::string_view label, std::string show::ShowSettings::*member,
                    const QStringList& items) {
        QComboBox* box = addList(name, label, member);
        box->addItems(items);
        place(label, box);
        return box;
    };
    list("UseFading", show::kUseFadingLabel, &show::ShowSettings::UseFading, ListOf(show::kYesNoList));
    list("AllowZip", show::kAllowZipLabel, &show::ShowSettings::AllowZip, ListOf(show::kYesNoList));
    list("ImagesPerLine", show::kImagesPerLineLabel, &show::ShowSettings::ImagesPerLine,
         ListOf(show::kImagesPerLineList));
    list("ColumnsPerLine", show::kColumnsPerLineLabel, &show::ShowSettings::ColumnsPerLine,
         ListOf(show::kColumnsPerLineList));
    m_fadeMode = list("FadeMode", show::kFadeModeLabel, &show::ShowSettings::FadeMode, ListOf(show::kFadeModeList));
    m_fadeSteps =
        list("FadeSteps", show::kFadeStepsLabel, &show::ShowSettings::FadeSteps, ListOf(show::kFadeStepsList));
    m_fadeDelay =
        list("FadeDelay", show::kFadeDelayLabel, &show::ShowSettings::FadeDelay, ListOf(show::kFadeDelayList));
    QLineEdit* browserTitle = addField("BrowserTitle", show::kBrowserTitleLabel, &show::ShowSettings::BrowserTitle);
    place(show::kBrowserTitleLabel, browserTitle);

    auto* colorRow = new QHBoxLayout;
    auto* colorButton = new QPushButton(ToQ(show::kBackgroundColorButton));
    colorButton->setObjectName("BackgroundColor");
    connect(colorButton, &QPushButton::clicked, this, [this] { runCommand("BackgroundColor"); });
    m_sample = new QFrame;
    m_sample->setObjectName("BackgroundSample");
    m_sample->setFixedSize(120, 32);
    m_sample->setFrameShape(QFrame::Box);
    colorRow->addWidget(colorButton);
    colorRow->addWidget(m_sample);
    colorRow->addStretch(1);
    grid->addLayout(colorRow, (cell + 1) / 2, 0, 1, 4);

    auto* output = new QGroupBox("Your photo show");
    auto* outLayout = new QVBoxLayout(output);
    m_output = new QLineEdit;
    m_output->setObjectName("OutputLine");
    m_output->setReadOnly(true);
    m_output->setPlaceholderText("The link to the show appears here after BUILD PHOTO SHOW");
    outLayout->addWidget(m_output);
    auto* buttons = new QGridLayout;
    auto button = [&](const QString& name, const QString& caption, int row, int col, bool afterBuild) {
        auto* b = new QPushButton(caption);
        b->setObjectName(name);
        b->setMinimumHeight(34);
        connect(b, &QPushButton::clicked, this, [this, name] { runCommand(name); });
        buttons->addWidget(b, row, col);
        if (afterBuild)
            m_afterBuild << b;
        return b;
    };
    QPushButton* build = button("BuildPhotoShow", "BUILD PHOTO SHOW", 0, 0, false);
    build->setStyleSheet("font-weight: 700;");
    button("ViewInstructions", "VIEW INSTRUCTIONS", 0, 1, true);
    button("OpenLocalShow", "OPEN PHOTOSHOW ON THIS COMPUTER", 0, 2, true);
    button("ViewShowLive", "VIEW PHOTOSHOW LIVE ON YOUR WEB SITE", 1, 0, true);
    button("FtpOutputFiles", "FTP OUTPUT FILES TO YOUR WEB SERVER", 1, 1, true);
    outLayout->addLayout(buttons);
    // the build and its results stay in sight below the settings, however small the window
    auto* pinned = new QWidget;
    auto* pinnedLayout = new QVBoxLayout(pinned);
    pinnedLayout->setContentsMargins(32, 4, 32, 12);
    pinnedLayout->addWidget(output);
    outer->addWidget(pinned);
    main->addStretch(1);

    refresh();
}

QLineEdit* PhotoShowPage::addField(const QString& name, std::string_view, std::string show::ShowSettings::*member)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(name);
    connect(edit, &QLineEdit::textChanged, this, [this, member](const QString& text) {
        if (!m_loading)
            m_session.photoShow.settings.*member = text.toStdString();
    });
    m_fields << std::pair{edit, member};
    return edit;
}

QComboBox* PhotoShowPage::addList(const QString& name, std::string_view, std::string show::ShowSettings::*member)
{
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->setMinimumWidth(170);
    connect(box, &QComboBox::currentTextChanged, this, [this, member](const QString& text) {
        if (m_loading)
            return;
        m_session.photoShow.settings.*member = text.toStdString();
        if (member == &show::ShowSettings::UseFading)
            applyFadeSwitch();
    });
    m_lists << std::pair{box, member};
    return box;
}

void PhotoShowPage::fillList(QComboBox* box, const std::string& value)
{
    // a show file may hold a text that is not in the list: it is shown as it stands
    const QString text = QString::fromStdString(value);
    int at = box->findText(text, Qt::MatchExactly);
    if (at < 0) {
        box->addItem(text);
        at = box->count() - 1;
    }
    box->setCurrentIndex(at);
}

void PhotoShowPage::applyFadeSwitch()
{
    show::ApplyFadeSwitch(m_session.photoShow);
    for (auto* box : {m_fadeMode, m_fadeSteps, m_fadeDelay})
        box->setEnabled(m_session.photoShow.fadeFieldsEnabled);
}

void PhotoShowPage::refresh()
{
    m_loading = true;
    const show::ShowSettings& s = m_session.photoShow.settings;
    for (const auto& [edit, member] : m_fields)
        edit->setText(QString::fromStdString(s.*member));
    for (const auto& [box, member] : m_lists)
        fillList(box, s.*member);
    PaintSwatch(m_sample, s.BackgroundColor);
    m_output->setText(QString::fromStdString(m_session.photoShow.OutputLine));
    m_output->setEnabled(m_session.photoShow.outputEnabled);
    for (auto* b : m_afterBuild)
        b->setEnabled(m_session.photoShow.outputEnabled);
    m_loading = false;
    applyFadeSwitch();
    refreshRecent();
}

void PhotoShowPage::refreshRecent()
{
    const auto& menu = m_session.run.photoMenu;
    for (int slot = 1; slot <= store::kMenuSlots; ++slot) {
        QAction* a = m_recent->findChild<QAction*>(RecentName(slot), Qt::FindDirectChildrenOnly);
        if (a == nullptr)
            continue;
        const auto& entry = menu[static_cast<size_t>(slot - 1)];
        a->setText(QString::fromStdString(entry.caption));
        a->setVisible(entry.visible);
        a->setEnabled(entry.enabled);
    }
    m_recent->setEnabled(m_session.run.photoRecentEnabled);
}

void PhotoShowPage::openRecent(int slot)
{
    const std::string caption = m_session.run.photoMenu[static_cast<size_t>(slot - 1)].caption;
    show::OpenShow(m_session, show::ShowPathFromCaption(caption), m_ui);
    refresh();
}

bool PhotoShowPage::runCommand(const QString& name)
{
    show::ShowPage& page = m_session.photoShow;
    if (name == "Save") {
        show::SaveShow(m_session, m_ui);
        refreshRecent();
    } else if (name == "Open") {
        show::OpenShow(m_session, "", m_ui);
        refresh();
    } else if (int slot = RecentSlot(name); slot > 0) {
        openRecent(slot);
    } else if (name == "Help") {
        show::ShowHelp(m_ui);
    } else if (name == "Exit") {
        if (onExit)
            onExit();
    } else if (name == "BuildPhotoShow") {
        // the build asks for the template first: no busy pointer over its dialog
        show::BuildShow(m_session, programFolder.toStdString(), m_ui);
        refresh();
    } else if (name == "ViewInstructions") {
        show::ViewInstructions(page.settings, m_ui);
    } else if (name == "ViewShowLive") {
        show::ViewShowLive(m_session.setup.BrowserPath, page, m_ui);
    } else if (name == "FtpOutputFiles") {
        shell::LaunchFTP(m_session.setup, m_ui);
    } else if (name == "OpenLocalShow") {
        show::OpenLocalShow(page.settings, m_ui);
    } else if (name == "BackgroundColor") {
        if (auto c = m_ui.chooseColor(page.settings.BackgroundColor, "BACKGROUND COLOR"))
            page.settings.BackgroundColor = *c;
        refresh();
    } else {
        return false;
    }
    return true;
}

} // namespace tq::gui
