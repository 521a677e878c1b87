// SPDX-License-Identifier: GPL-3.0-or-later
#include "create_page.h"
#include "entry_table_model.h"
#include "final_page.h"
#include "gui_test_support.h"
#include "main_window.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QtTest>

using namespace tq::gui;

class BuildTest : public QObject
{
    Q_OBJECT
  private slots:
    void buildFromTheMenuWritesBothFilesIntoTheWebFolder()
    {
        test::StartedWindow app;
        QVERIFY(app.started);
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        app.put(1, 2, "Email");
        const QString web = app.useWebFolder();
        QVERIFY(!web.isEmpty());
        test::DialogScript script;
        QVERIFY(test::Trigger(&w, "CreateFormOnly"));
        QVERIFY2(script.seen.isEmpty(), qPrintable(script.seen.join(" | ")));
        const QString html = QString::fromStdString(w.session().build.htmlPath);
        const QString php = QString::fromStdString(w.session().build.phpPath);
        QVERIFY(html.startsWith(web));
        QVERIFY(QFile::exists(html));
        QVERIFY(QFile::exists(php));
        // the busy pointer is gone on every way out
        QCOMPARE(QApplication::overrideCursor(), nullptr);
        QCOMPARE(w.currentView(), tq::View::FinalPage);
        // a script PHP can parse gets no warning line
        QVERIFY(w.finalPage()->publishWarning()->isHidden());
    }

    void theFinalPageWarnsOfAScriptPhpCannotParseAndTestsLocally()
    {
        if (QStandardPaths::findExecutable("php").isEmpty())
            QSKIP("php is not installed");
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        app.put(1, 2, "Cell Phone Number");
        QVERIFY(!app.useWebFolder().isEmpty());
        test::DialogScript script;
        QVERIFY(test::Trigger(&w, "CreateFormOnly"));
        QVERIFY2(script.seen.isEmpty(), qPrintable(script.seen.join(" | ")));
        QCOMPARE(w.currentView(), tq::View::FinalPage);
        QLabel* warning = w.finalPage()->publishWarning();
        QTRY_VERIFY_WITH_TIMEOUT(warning->isVisible(), 10000); // php reads the script on its own
        QVERIFY2(warning->text().contains("Cell Phone Number"), qPrintable(warning->text()));
        test::SaveScreenshot(&w, "final_page_publish_check");
        // the page's own button and its Build menu both start the local test
        int started = 0;
        w.registerCommand("TestLocally", [&started] { ++started; });
        w.finalPage()->findChild<QPushButton*>("TestLocallyButton")->click();
        QVERIFY(test::Trigger(w.finalPage(), "TestLocally"));
        QCOMPARE(started, 2);
    }

    void aMissingWebFolderIsToldAndTheSetupRowShown()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        auto& setup = w.session().store.pages[0][0].AttributeText;
        const std::string site = w.session().settings.DefaultDriveFolder;
        const auto at = setup.find(site);
        QVERIFY(at != std::string::npos);
        setup.replace(at, site.size(), app.docs.filePath("gone").toStdString());
        test::DialogScript script;
        script.press(QMessageBox::Ok);
        QVERIFY(test::Trigger(&w, "CreateFormHTMLCode"));
        QVERIFY2(script.done(), qPrintable(script.seen.join(" | ")));
        QVERIFY(script.seen[0].startsWith("PATH ERROR: The path to the current web folder does not exist"));
        // the SetupEntry comes up on the edit page with its folder row
        QCOMPARE(w.currentView(), tq::View::EditPage);
        QCOMPARE(QApplication::overrideCursor(), nullptr);
    }

    void editShowsTheRowAndMarksItRed()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(2, 3, "Name");
        w.showView(tq::View::Page2);
        auto* page = w.createPage(2);
        QVERIFY(!page->findChild<QPushButton*>("Edit4")->isEnabled());
        page->findChild<QPushButton*>("Edit3")->click();
        QCOMPARE(w.currentView(), tq::View::EditPage);
        QVERIFY(app.at(2, 3).highlight == tq::model::Highlight::Red);
        QCOMPARE(w.session().store.state.EditPage, 2);
        QCOMPARE(w.session().store.state.EditRow, 3);
        w.showView(tq::View::Page2);
        const auto colour = page->model()->data(page->model()->index(3, EntryTableModel::ColType), Qt::ForegroundRole);
        QCOMPARE(colour.value<QBrush>().color(), QColor(255, 0, 0));
    }
};

QTEST_MAIN(BuildTest)
#include "gui_build_test.moc"
