// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/keyring_port.h"
#include "port/ui_port.h"
#include "results/result_set.h"

#include <QString>
#include <QStringList>
#include <QWidget>
#include <vector>

class QChartView;
class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QTableView;
class QVBoxLayout;

namespace tq {
struct Session;
}

namespace tq::gui {

class ResultsTableModel;

/// "Results": the answers that came back by mail, read from mail files, a
/// Maildir, the mails Test Locally caught or an IMAP mailbox. A table with
/// one row per submission (sortable, filterable), a bar chart of counts and
/// percentages for every question with choices, the text answers under
/// their question; export to CSV and PDF, copy a chart as an image.
class ResultsWindow : public QWidget
{
    Q_OBJECT
  public:
    explicit ResultsWindow(UiPort& ui, QWidget* parent = nullptr);
    ~ResultsWindow() override;

    /// Starts over with the questions of the project in `session` (built into
    /// a temporary folder; the user's files stay untouched). A project that
    /// does not build is told through the port and the questions then come
    /// from the mails.
    void useProject(const Session& session);
    /// Reads mail files, folders or IMAP addresses into the results and shows them.
    /// False when one of them could not be read (told through the port).
    bool readSources(const QStringList& sources, const QString& imapPassword = {});
    /// Writes the table as CSV; false (and a message) when it cannot be written.
    bool exportCsv(const QString& path);
    /// Writes the summary, the charts and the table to a PDF report.
    bool exportPdf(const QString& path);
    /// Puts chart `index` (in the order shown) on the clipboard as an image.
    void copyChart(int index);

    /// Where an IMAP mailbox's password is kept; none: it is asked for each time.
    KeyringPort* keyring = nullptr;

    /// The folder whose mails "Test Locally Mails" reads; empty while no local test runs.
    QString localTestMailFolder;

    const results::ResultSet& results() const { return m_set; }
    QTableView* table() const { return m_table; }
    QLineEdit* filter() const { return m_filter; }
    const std::vector<QChartView*>& charts() const { return m_charts; }
    QLabel* summary() const { return m_summary; }

  private:
    void refresh();
    void chooseFiles();
    void chooseFolder();
    void chooseImap();
    void chooseCsv();
    void choosePdf();

    UiPort& m_ui;
    results::ResultSet m_set;
    results::ProjectQuestions m_project;
    bool m_hasProject = false;
    ResultsTableModel* m_model = nullptr;
    QSortFilterProxyModel* m_proxy = nullptr;
    QTableView* m_table = nullptr;
    QLineEdit* m_filter = nullptr;
    QLabel* m_summary = nullptr;
    QWidget* m_answers = nullptr;
    QVBoxLayout* m_answersLayout = nullptr;
    std::vector<QChartView*> m_charts;
};

} // namespace tq::gui
