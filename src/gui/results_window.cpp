// SPDX-License-Identifier: GPL-3.0-or-later
#include "results_window.h"

#include "busy_cursor.h"
#include "qt_keyring.h"
#include "results/csv_export.h"
#include "results/imap_source.h"
#include "results/project_questions.h"
#include "results/read_sources.h"
#include "results_table_model.h"
#include "session.h"

#include <QApplication>
#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPdfWriter>
#include <QPushButton>
#include <QScrollArea>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QValueAxis>

namespace tq::gui {

namespace {

QString ChoiceCaption(const results::ChoiceCount& c, long total)
{
    const QString choice = c.choice.empty() ? QObject::tr("(empty)") : QString::fromStdString(c.choice);
    return QStringLiteral("%1 — %2 (%3%)").arg(choice).arg(c.count).arg(results::Percent(c.count, total), 0, 'f', 1);
}

QChartView* MakeChart(const results::Question& q, const results::QuestionCounts& counts, long total, QWidget* parent)
{
    auto* set = new QBarSet(QObject::tr("Answers"));
    QStringList categories;
    int most = 0;
    for (const auto& c : counts.counts) {
        *set << static_cast<qreal>(c.count);
        categories << ChoiceCaption(c, total);
        most = std::max(most, static_cast<int>(c.count));
    }
    auto* series = new QBarSeries;
    series->append(set);
    series->setLabelsVisible(true);
    auto* chart = new QChart;
    chart->addSeries(series);
    chart->setTitle(QString::fromStdString(q.title));
    chart->legend()->hide();
    auto* axisX = new QBarCategoryAxis;
    axisX->append(categories);
    chart->addAxis(axisX, Qt::AlignBottom);
    series->attachAxis(axisX);
    auto* axisY = new QValueAxis;
    axisY->setRange(0, std::max(1, most));
    axisY->setLabelFormat("%d");
    axisY->setTickCount(std::min(most, 10) + 1 < 2 ? 2 : std::min(most, 10) + 1);
    chart->addAxis(axisY, Qt::AlignLeft);
    series->attachAxis(axisY);
    auto* view = new QChartView(chart, parent);
    view->setRenderHint(QPainter::Antialiasing);
    view->setMinimumHeight(260);
    return view;
}

} // namespace

ResultsWindow::ResultsWindow(UiPort& ui, QWidget* parent) : QWidget(parent, Qt::Window), m_ui(ui)
{
    setObjectName("ResultsWindow");
    setWindowTitle(tr("Results"));
    resize(1100, 760);

    auto* bar = new QHBoxLayout;
    auto addButton = [&](const char* name, const QString& caption, auto slot) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(name);
        connect(b, &QPushButton::clicked, this, slot);
        bar->addWidget(b);
        return b;
    };
    addButton("ResultsOpenFiles", tr("Open Mail Files..."), &ResultsWindow::chooseFiles);
    addButton("ResultsOpenFolder", tr("Open Mail Folder..."), &ResultsWindow::chooseFolder);
    addButton("ResultsOpenImap", tr("Open IMAP Mailbox..."), &ResultsWindow::chooseImap);
    addButton("ResultsLocalTest", tr("Test Locally Mails"), [this] {
        if (localTestMailFolder.isEmpty())
            m_ui.message("No local test is running, so no mails were caught.", "RESULTS", Icon::Information);
        else
            readSources({localTestMailFolder});
    });
    bar->addStretch();
    addButton("ResultsExportCsv", tr("Export CSV..."), &ResultsWindow::chooseCsv);
    addButton("ResultsExportPdf", tr("Export PDF..."), &ResultsWindow::choosePdf);

    m_summary = new QLabel(this);
    m_summary->setObjectName("ResultsSummary");
    m_summary->setWordWrap(true);
    m_filter = new QLineEdit(this);
    m_filter->setObjectName("ResultsFilter");
    m_filter->setPlaceholderText(tr("Filter the submissions"));
    m_filter->setClearButtonEnabled(true);

    m_model = new ResultsTableModel(m_set, this);
    m_proxy = new QSortFilterProxyModel(this);
    m_proxy->setSourceModel(m_model);
    m_proxy->setFilterKeyColumn(-1);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    connect(m_filter, &QLineEdit::textChanged, m_proxy, &QSortFilterProxyModel::setFilterFixedString);
    m_table = new QTableView(this);
    m_table->setObjectName("ResultsTable");
    m_table->setModel(m_proxy);
    m_table->setSortingEnabled(true);
    m_table->horizontalHeader()->setDefaultSectionSize(160);
    m_table->setWordWrap(false);

    m_answers = new QWidget;
    m_answers->setObjectName("ResultsAnswers");
    m_answersLayout = new QVBoxLayout(m_answers);
    auto* scroll = new QScrollArea(this);
    scroll->setWidget(m_answers);
    scroll->setWidgetResizable(true);

    auto* tablePane = new QWidget(this);
    auto* tableLayout = new QVBoxLayout(tablePane);
    tableLayout->setContentsMargins(0, 0, 0, 0);
    tableLayout->addWidget(m_filter);
    tableLayout->addWidget(m_table);
    auto* split = new QSplitter(Qt::Vertical, this);
    split->addWidget(tablePane);
    split->addWidget(scroll);
    split->setSizes({280, 420}); // the charts want the larger share

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_summary);
    layout->addWidget(split, 1);
    refresh();
}

ResultsWindow::~ResultsWindow() = default;

void ResultsWindow::useProject(const Session& session)
{
    m_hasProject = false;
    m_set = results::ResultSet{};
    QTemporaryDir scratch(QDir::tempPath() + "/tarnquill-results-XXXXXX");
    // the project is built as it stands into a scratch folder; the user's output stays untouched
    auto copy = std::make_unique<Session>();
    copy->store = session.store;
    copy->settings = session.settings;
    copy->catalogue = session.catalogue;
    copy->setup = session.setup;
    copy->DataFolder = session.DataFolder;
    std::string error;
    BusyCursor busy;
    if (scratch.isValid() && results::ReadProjectQuestions(*copy, scratch.path().toStdString(), m_project, error)) {
        m_hasProject = true;
        m_set = results::ResultsForProject(m_project);
    } else {
        m_ui.message("The project does not build, so the questions are taken from the mails.\r\r" + error, "RESULTS",
                     Icon::Exclamation);
    }
    refresh();
}

bool ResultsWindow::readSources(const QStringList& sources, const QString& imapPassword)
{
    std::vector<std::string> list;
    for (const auto& s : sources)
        list.push_back(s.toStdString());
    std::string problems;
    {
        BusyCursor busy;
        for (const auto& r : results::ReadSources(m_set, list, imapPassword.toStdString()))
            if (!r.error.empty())
                problems += r.source + ": " + r.error + "\r";
    }
    refresh();
    if (!problems.empty())
        m_ui.message("Some mails could not be read:\r\r" + problems, "RESULTS", Icon::Exclamation);
    return problems.empty();
}

void ResultsWindow::refresh()
{
    m_model->reload();
    m_table->resizeRowsToContents();
    const long total = static_cast<long>(m_set.rows.size());
    QStringList skipped;
    for (const auto& [why, count] : m_set.skipped)
        skipped << QStringLiteral("%1: %2").arg(QString::fromStdString(why)).arg(count);
    m_summary->setText(tr("%1 submissions from %2 mails read; %3 skipped%4")
                           .arg(total)
                           .arg(m_set.mailsRead)
                           .arg(results::SkippedCount(m_set))
                           .arg(skipped.isEmpty() ? QString() : " (" + skipped.join(", ") + ")"));

    while (QLayoutItem* item = m_answersLayout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    m_charts.clear();
    for (const auto& counts : results::CountAnswers(m_set)) {
        const auto& q = m_set.questions[counts.question];
        if (counts.choices) {
            auto* view = MakeChart(q, counts, total, m_answers);
            view->setObjectName(QStringLiteral("ResultsChart%1").arg(m_charts.size()));
            const int index = static_cast<int>(m_charts.size());
            view->setContextMenuPolicy(Qt::ActionsContextMenu);
            auto* copy = new QAction(tr("Copy Chart"), view);
            copy->setObjectName("CopyChart");
            connect(copy, &QAction::triggered, this, [this, index] { copyChart(index); });
            view->addAction(copy);
            m_charts.push_back(view);
            m_answersLayout->addWidget(view);
            continue;
        }
        auto* title = new QLabel(QStringLiteral("<b>%1</b> — %2")
                                     .arg(QString::fromStdString(q.title).toHtmlEscaped())
                                     .arg(tr("%n text answer(s)", nullptr, static_cast<int>(counts.answered))),
                                 m_answers);
        m_answersLayout->addWidget(title);
        auto* list = new QListWidget(m_answers);
        for (size_t r = 0; r < m_set.rows.size(); ++r) {
            const QString text =
                ResultsTableModel::CellText(m_set, static_cast<int>(r), static_cast<int>(counts.question) + 2);
            if (!text.isEmpty())
                list->addItem(text);
        }
        list->setMaximumHeight(list->count() == 0 ? 30 : 120);
        m_answersLayout->addWidget(list);
    }
    m_answersLayout->addStretch();
}

bool ResultsWindow::exportCsv(const QString& path)
{
    if (results::WriteResultsCsv(m_set, path.toStdString()))
        return true;
    m_ui.message("The file " + path.toStdString() + " could not be written.", "EXPORT CSV", Icon::Exclamation);
    return false;
}

bool ResultsWindow::exportPdf(const QString& path)
{
    QPdfWriter pdf(path);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setResolution(96);
    pdf.setTitle(tr("Results"));
    QPainter painter;
    if (!painter.begin(&pdf)) {
        m_ui.message("The file " + path.toStdString() + " could not be written.", "EXPORT PDF", Icon::Exclamation);
        return false;
    }
    const QRect page = painter.viewport();
    int y = 0;
    auto newPageIfNeeded = [&](int height) {
        if (y + height > page.height()) {
            pdf.newPage();
            y = 0;
        }
    };
    QFont font = painter.font();
    font.setPointSize(10);
    painter.setFont(font);
    const int line = painter.fontMetrics().height() + 2;
    painter.drawText(QRect(0, y, page.width(), line * 3), Qt::TextWordWrap, m_summary->text());
    y += line * 3;
    for (auto* view : m_charts) {
        newPageIfNeeded(320);
        view->render(&painter, QRectF(0, y, page.width(), 300));
        y += 320;
    }
    // the table: each submission as its question and answer lines
    for (int r = 0; r < m_model->rowCount(); ++r) {
        newPageIfNeeded(line * 2);
        font.setBold(true);
        painter.setFont(font);
        painter.drawText(0, y + line,
                         tr("Submission %1: %2, %3")
                             .arg(r + 1)
                             .arg(ResultsTableModel::CellText(m_set, r, 0), ResultsTableModel::CellText(m_set, r, 1)));
        font.setBold(false);
        painter.setFont(font);
        y += line;
        for (int c = 2; c < m_model->columnCount(); ++c) {
            const QString text = m_model->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString() + ": " +
                                 ResultsTableModel::CellText(m_set, r, c).replace('\n', " / ");
            const QRect box = painter.boundingRect(QRect(20, y, page.width() - 20, 10000), Qt::TextWordWrap, text);
            newPageIfNeeded(box.height());
            painter.drawText(QRect(20, y, page.width() - 20, box.height()), Qt::TextWordWrap, text);
            y += box.height();
        }
        y += line / 2;
    }
    return painter.end();
}

void ResultsWindow::copyChart(int index)
{
    if (index < 0 || index >= static_cast<int>(m_charts.size()))
        return;
    QApplication::clipboard()->setImage(m_charts[static_cast<size_t>(index)]->grab().toImage());
}

void ResultsWindow::chooseFiles()
{
    // one file at a time through the port: an mbox holds many mails already
    if (const auto file = m_ui.openFileDialog(
            {"Open Mail File", "", "",
             "Mail files (*.mbox *.mbx *.eml *.txt) | *.mbox;*.mbx;*.eml;*.txt | All files (*) | *"}))
        readSources({QString::fromStdString(*file)});
}

void ResultsWindow::chooseFolder()
{
    if (const auto folder = m_ui.browseForFolder("Open a Maildir or a Folder of Mails", ""))
        readSources({QString::fromStdString(*folder)});
}

void ResultsWindow::chooseImap()
{
    const auto address =
        m_ui.inputBox("Mailbox (imap://user@host:port/folder or imaps://...):", "OPEN IMAP MAILBOX", "imaps://");
    if (!address || address->empty())
        return;
    if (!results::ParseImapAddress(*address)) {
        m_ui.message("The address " + *address +
                         " is not a mailbox address.\r\rWrite it as imap://user@host:port/folder.",
                     "OPEN IMAP MAILBOX", Icon::Exclamation);
        return;
    }
    // a kept password is tried first; one that fails, or none, is asked for
    const std::string key = MailboxPasswordKey(*address);
    const std::optional<std::string> kept = keyring != nullptr ? keyring->readSecret(key) : std::nullopt;
    if (kept && readSources({QString::fromStdString(*address)}, QString::fromStdString(*kept)))
        return;
    const auto password = m_ui.passwordBox("Password:", "OPEN IMAP MAILBOX");
    if (!password || !readSources({QString::fromStdString(*address)}, QString::fromStdString(*password)))
        return;
    if (keyring != nullptr && !keyring->writeSecret(key, *password) && !keyring->toldNotKept) {
        keyring->toldNotKept = true;
        m_ui.message("No keyring answers on this desktop, so the password cannot be kept. It is asked for each time.",
                     "PASSWORD NOT KEPT", Icon::Information);
    }
}

void ResultsWindow::chooseCsv()
{
    if (const auto path = m_ui.saveFileDialog({"Export CSV", "", "results.csv", "CSV files (*.csv) | *.csv"}))
        exportCsv(QString::fromStdString(*path));
}

void ResultsWindow::choosePdf()
{
    if (const auto path = m_ui.saveFileDialog({"Export PDF", "", "results.pdf", "PDF files (*.pdf) | *.pdf"}))
        exportPdf(QString::fromStdString(*path));
}

} // namespace tq::gui
