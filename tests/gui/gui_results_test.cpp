// SPDX-License-Identifier: GPL-3.0-or-later
// The results window: the questions of the project open, mails read from an
// mbox, the table sorted and filtered, a chart per question with choices,
// CSV and PDF written, a chart copied as an image; opened from the Build menu.
#include "gui_test_support.h"
#include "main_window.h"
#include "qt_port.h"
#include "results_window.h"
#include "session.h"
#include "store/project_file.h"
#include "store/text_file.h"

#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace tq::gui;

namespace {

std::string ResultMail(const std::string& name, const std::string& country, const std::string& levels)
{
    return "From visitor@localhost Mon Nov 23 10:00:00 2026\n"
           "To: a@example.com\r\nSubject: General Question\r\nfrom: Tarnquill Test@\r\n\r\n"
           "A message has been submitted from\r\nTarnquill Test@\r\n\r\nDate: Monday November 23, 2026\r\n\r\n"
           "Send from public IP Address\r\n127.0.0.1\r\n\r\n1. Enter your full name\r\n" +
           name + "\r\n\r\n7. Select a country from the dropdown list\r\n" + country +
           "\r\n\r\n8. Select your level of play\r\n" + levels + "\r\n\r\nEnd of message\r\n\n";
}

} // namespace

class ResultsWindowTest : public QObject
{
    Q_OBJECT
  private slots:
    void readsShowsAndExports()
    {
        QTemporaryDir dir;
        tq::Session session;
        session.DataFolder = dir.filePath("data").toStdString();
        QDir().mkpath(dir.filePath("data"));
        session.store.state.ProjectMode = tq::model::Mode::Form;
        auto reader = tq::store::ReaderOf(*tq::store::ReadWholeFile(TQ_DATA_DIR "/../tests/e2e/fixtures/e2e_form.fms"));
        tq::store::ReadEntries(session.store, reader);

        QtPort port(nullptr);
        ResultsWindow window(port);
        window.useProject(session);
        const QString box = dir.filePath("results.mbox");
        QFile f(box);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write((ResultMail("Zoë", "Germany", "Checked: Beginner\nChecked: Advanced\n") +
                 ResultMail("Ann", "Sweden", "Checked: Advanced\n") +
                 ResultMail("Bo", "Germany", "Checked: Beginner\n") +
                 "From x@y Mon Nov 23 10:00:00 2026\nSubject: hello\r\n\r\nnot a result\r\n")
                    .c_str());
        f.close();
        window.readSources({box});
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QCOMPARE(window.table()->model()->rowCount(), 3);
        QVERIFY(window.summary()->text().startsWith("3 submissions from 4 mails read; 1 skipped"));
        const int name = 2;
        QCOMPARE(window.table()->model()->headerData(name, Qt::Horizontal).toString(),
                 QString("1. Enter your full name"));
        window.table()->sortByColumn(name, Qt::AscendingOrder);
        QCOMPARE(window.table()->model()->index(0, name).data().toString(), QString("Ann"));
        QCOMPARE(window.table()->model()->index(2, name).data().toString(), QString("Zoë"));
        window.filter()->setText("germany");
        QCOMPARE(window.table()->model()->rowCount(), 2);
        window.filter()->clear();

        // the yes/no, dropdown, check box and condition questions of the project each have a chart
        QVERIFY(window.charts().size() >= 4);
        test::SaveScreenshot(&window, "results_window");

        const QString csv = dir.filePath("out.csv");
        QVERIFY(window.exportCsv(csv));
        QFile c(csv);
        QVERIFY(c.open(QIODevice::ReadOnly));
        const QByteArray bytes = c.readAll();
        QVERIFY(bytes.startsWith("\xEF\xBB\xBF"
                                 "Date,Address,1. Enter your full name,"));
        QVERIFY(bytes.contains("Zoë"));
        const QString pdf = dir.filePath("out.pdf");
        QVERIFY(window.exportPdf(pdf));
        QFile p(pdf);
        QVERIFY(p.open(QIODevice::ReadOnly));
        QVERIFY(p.readAll().startsWith("%PDF"));
        QVERIFY(p.size() > 10000);

        QApplication::clipboard()->clear();
        window.copyChart(0);
        const QImage image = QApplication::clipboard()->image();
        QVERIFY(!image.isNull());
        QVERIFY(image.width() > 200 && image.height() > 200);
    }

    void openedFromTheBuildMenu()
    {
        test::StartedWindow s;
        QVERIFY(s.started);
        QAction* results = s.w->findChild<QAction*>("Results");
        QVERIFY(results);
        QVERIFY(!s.useWebFolder().isEmpty());
        test::DialogScript script;
        results->trigger();
        auto* window = s.w->findChild<ResultsWindow*>("ResultsWindow");
        QVERIFY(window);
        QVERIFY(window->isVisible());
        QCOMPARE(script.seen, QStringList());
        QCOMPARE(window->results().rows.size(), size_t(0));
        window->close();
    }
};

QTEST_MAIN(ResultsWindowTest)
#include "gui_results_test.moc"
