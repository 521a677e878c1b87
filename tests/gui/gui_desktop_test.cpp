// SPDX-License-Identifier: GPL-3.0-or-later
// What a user of a desktop program expects around the pages: the title names
// the file and marks unsaved rows, the standard keys reach their commands,
// the site folder exists from the start, the help pages ship and open, and
// the edit page previews the Entry as it is typed.
#include "create_page.h"
#include "edit_page.h"
#include "gui_test_support.h"
#include "help_window.h"
#include "main_window.h"
#include "photo_show_page.h"
#include "pick_list.h"
#include "preview_window.h"
#include "start_page.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QTableView>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

using namespace tq::gui;

namespace {

tq::View PageView(int page)
{
    return static_cast<tq::View>(static_cast<int>(tq::View::Page1) + page - 1);
}

// True when `w` stands in a scrolled area, where the user scrolls to it.
bool InScrolledArea(QWidget* w)
{
    for (QWidget* p = w->parentWidget(); p; p = p->parentWidget())
        if (qobject_cast<QAbstractScrollArea*>(p))
            return true;
    return false;
}

// The HTML the view shows now.
QString HtmlOf(QWebEngineView* web)
{
    QString html;
    bool done = false;
    web->page()->toHtml([&](const QString& h) {
        html = h;
        done = true;
    });
    return QTest::qWaitFor([&] { return done; }, 5000) ? html : QString();
}

} // namespace

class DesktopTest : public QObject
{
    Q_OBJECT
  private slots:
    void theTitleNamesTheFileAndMarksUnsavedRows()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        QVERIFY(app.started);
        QCOMPARE(w.windowTitle(), QString("Tarnquill"));
        app.put(1, 1, "Name");
        QCOMPARE(w.windowTitle(), QString::fromUtf8("*Untitled \u2014 Tarnquill"));

        const QString file = app.data + "/club.fms";
        test::DialogScript script;
        script.choose(file);
        QVERIFY(test::Trigger(&w, "SaveForm"));
        QVERIFY2(script.done(), qPrintable(script.seen.join(" | ")));
        QCOMPARE(w.windowTitle(), QString::fromUtf8("club.fms \u2014 Tarnquill"));
        QCOMPARE(w.startPage()->findChild<QLabel*>("lblFile")->text(), "FILE LOADED: " + file.toUpper());

        // a row changed after the save marks the title again; a Clear of it brings the saved rows back
        app.put(1, 2, "Email");
        QVERIFY(w.windowTitle().startsWith("*club.fms"));
        w.showView(tq::View::Page1);
        w.createPage(1)->findChild<QPushButton*>("Clear2")->click();
        QCOMPARE(w.windowTitle(), QString::fromUtf8("club.fms \u2014 Tarnquill"));
    }

    void eachStandardKeyReachesItsCommand()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        QStringList ran;
        for (const char* name : {"CreateNewForm", "openform", "SaveForm", "CreateFormOnly", "CreateFormHTMLCode",
                                 "CreatingFormSurvey", "Exit", "CreateSurvey", "OpenSurvey", "SaveSurvey"})
            w.registerCommand(name, [&ran, name] { ran << name; });
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        const struct
        {
            int key;
            Qt::KeyboardModifiers mods;
        } keys[] = {{Qt::Key_N, Qt::ControlModifier}, {Qt::Key_O, Qt::ControlModifier},
                    {Qt::Key_S, Qt::ControlModifier}, {Qt::Key_B, Qt::ControlModifier},
                    {Qt::Key_F5, Qt::NoModifier},     {Qt::Key_F1, Qt::NoModifier},
                    {Qt::Key_Q, Qt::ControlModifier}};
        for (const auto& k : keys)
            QTest::keyClick(&w, static_cast<Qt::Key>(k.key), k.mods);
        QCOMPARE(ran, QStringList({"CreateNewForm", "openform", "SaveForm", "CreateFormOnly", "CreateFormHTMLCode",
                                   "CreatingFormSurvey", "Exit"}));

        // new, open and save follow the active mode; the menus show the keys
        w.session().store.state.ProjectMode = tq::model::Mode::Survey;
        w.refreshAll();
        ran.clear();
        for (int key : {Qt::Key_N, Qt::Key_O, Qt::Key_S})
            QTest::keyClick(&w, static_cast<Qt::Key>(key), Qt::ControlModifier);
        QCOMPARE(ran, QStringList({"CreateSurvey", "OpenSurvey", "SaveSurvey"}));
        auto* save = w.startPage()->findChild<QAction*>("SaveSurvey");
        QCOMPARE(save->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
        QVERIFY(w.startPage()->findChild<QAction*>("SaveForm")->shortcut().isEmpty());

        // Page Down and Page Up walk the four Pages and stop at their ends
        w.showView(tq::View::Page1);
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(&w, Qt::Key_PageDown);
        QCOMPARE(w.currentView(), tq::View::Page4);
        QTest::keyClick(&w, Qt::Key_PageUp);
        QCOMPARE(w.currentView(), tq::View::Page3);
        // pages without those commands leave the keys alone
        w.showView(tq::View::SetupPage);
        ran.clear();
        QTest::keyClick(&w, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(ran.isEmpty());
    }

    void enterEditsAndDeleteClearsTheFocusedRow()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        app.put(1, 2, "Email");
        w.showView(tq::View::Page1);
        QTableView* table = w.createPage(1)->table();
        table->setFocus();
        // the SetupEntry has no Clear: Delete leaves it
        table->setCurrentIndex(table->model()->index(0, 2));
        QTest::keyClick(table, Qt::Key_Delete);
        QCOMPARE(app.name(1, 0), QString("Setup"));
        table->setCurrentIndex(table->model()->index(2, 2));
        QTest::keyClick(table, Qt::Key_Delete);
        QCOMPARE(app.names(1, 1, 2), QStringList({"Name", ""}));
        table->setFocus();
        table->setCurrentIndex(table->model()->index(1, 2));
        const QList<int> split = w.createPage(1)->findChild<QSplitter*>()->sizes();
        QTest::keyClick(table, Qt::Key_Return);
        QCOMPARE(w.currentView(), tq::View::EditPage);
        QCOMPARE(w.session().store.state.EditRow, 1);
        // back on the Page, the splitter stands as it was left
        QVERIFY(test::Trigger(&w, "Exit"));
        QCOMPARE(w.currentView(), tq::View::Page1);
        QCOMPARE(w.createPage(1)->findChild<QSplitter*>()->sizes(), split);
    }

    void tabMovesBetweenListTableAndButtonsNeverIntoTheHiddenBrowser()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        w.showView(tq::View::Page1);
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        CreatePage* page = w.createPage(1);
        QTableView* table = page->table();
        page->pickList()->setFocus();
        QTRY_VERIFY(page->pickList()->hasFocus());
        table->setCurrentIndex(table->model()->index(1, 2));
        // Tab goes round the pick list, the page's buttons and the table, the
        // table once as a whole and not cell by cell
        QStringList round;
        for (int i = 0; i < 5; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            round << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(round, QStringList({"BackgroundPicture", "Order", "ClearAll", "tblRows", "lstInputTypes"}));
        QTest::keyClick(page->pickList(), Qt::Key_Backtab);
        QVERIFY(table->hasFocus());
        // round the whole window: the browser kept for the preview takes no focus while out of sight
        QWebEngineView* browser = w.previewWindow()->browser();
        for (int i = 0; i < 30; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QWidget* now = QApplication::focusWidget();
            QVERIFY(now && now != browser && !browser->isAncestorOf(now));
        }
    }

    void aFirstStartMakesTheSiteFolderThatANewProjectNames()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        const QString site = app.docs.filePath("tarnquill/site");
        QCOMPARE(w.siteFolder(), site);
        QVERIFY(QDir(site).exists());
        QVERIFY(QString::fromStdString(app.at(1, 0).AttributeText).contains("[Drive Folder Path=" + site + "]"));
        // the new project still carries the format's samples
        QVERIFY(QString::fromStdString(app.at(1, 0).AttributeText).contains("[Email #1=;"));

        // the edit page offers the Setup page's web folders beside the browser
        w.session().setup.rows[3].WebFolderPath = "/srv/www/club";
        w.showView(tq::View::Page1);
        w.createPage(1)->findChild<QPushButton*>("Edit0")->click();
        EditPage* edit = w.editPage();
        auto* folder = qobject_cast<QComboBox*>(edit->valueWidget(edit->rowOf("Drive Folder Path")));
        QVERIFY(folder);
        QCOMPARE(folder->currentText(), site);
        QVERIFY(folder->findText("/srv/www/club") >= 0);
    }

    void everyHelpEntryOpensAPageThatShips()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        const QString folder = HelpFolder();
        for (const QString& name : LocalHelpCommands()) {
            const QString file = LocalHelpPage(folder, name);
            QVERIFY2(!file.isEmpty(), qPrintable(name));
            // every picture and page a help page points at ships with it
            QFile f(file);
            QVERIFY(f.open(QIODevice::ReadOnly));
            const QString html = QString::fromUtf8(f.readAll());
            static const QRegularExpression link("(?:src|href)=\"([^\"#:]+)\"");
            for (auto m = link.globalMatch(html); m.hasNext();) {
                const QString target = m.next().captured(1);
                QVERIFY2(QFile::exists(QDir(folder).filePath(target)), qPrintable(file + " -> " + target));
            }
            w.runCommand(name);
            auto* help = w.findChild<HelpWindow*>("HelpWindow");
            QVERIFY(help && help->isVisible());
            QTRY_COMPARE(help->browser()->url(), QUrl::fromLocalFile(file));
        }
        auto* help = w.findChild<HelpWindow*>("HelpWindow");
        QTRY_VERIFY(!help->browser()->page()->isLoading());
        QTest::qWait(300);
        test::SaveScreenshot(help, "help_window");
        // a page that is missing leaves the web address as it was
        QVERIFY(LocalHelpPage(app.docs.path(), "CreatingFormSurvey").isEmpty());
        QVERIFY(LocalHelpPage(folder, "HomePage").isEmpty());
    }

    void theLivePreviewFollowsTypingAndCanBeHidden()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        const std::string before = app.at(1, 1).AttributeText;
        w.showView(tq::View::Page1);
        w.createPage(1)->findChild<QPushButton*>("Edit1")->click();
        EditPage* edit = w.editPage();
        QTRY_VERIFY(edit->livePreview());
        QTRY_VERIFY(!HtmlOf(edit->livePreview()).isEmpty());
        auto* title = qobject_cast<QLineEdit*>(edit->valueWidget(edit->rowOf("Title")));
        QVERIFY(title);
        title->setText("Your name, please");
        QTRY_VERIFY_WITH_TIMEOUT(HtmlOf(edit->livePreview()).contains("Your name, please"), 10000);
        // nothing is committed by the preview
        QCOMPARE(app.at(1, 1).AttributeText, before);
        edit->setLivePreviewShown(false);
        QVERIFY(edit->livePreview()->isHidden() || !edit->livePreview()->isVisible());
    }

    void everyPageFitsBothScreenSizes()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        const QString web = app.useWebFolder();
        const struct
        {
            int width, height;
        } sizes[] = {{1024, 700}, {1920, 1080}};
        // the preview's browser fills the room below its menu bar, at each size
        auto browserFillsThePreview = [&w] {
            PreviewWindow* preview = w.previewWindow();
            const QRect room(preview->mapTo(&w, QPoint(0, 0)), preview->size());
            const QRect browser = preview->browser()->geometry();
            return browser.left() == room.left() && browser.right() == room.right() &&
                   browser.bottom() == room.bottom() && browser.top() > room.top();
        };
        for (const auto& size : sizes) {
            w.resize(size.width, size.height);
            if (w.currentView() == tq::View::Preview)
                QTRY_VERIFY(browserFillsThePreview());
            const QString tag = QString("_%1x%2").arg(size.width).arg(size.height);
            auto shoot = [&](tq::View v, const QString& name) {
                w.showView(v);
                QTest::qWait(200);
                // no main button falls below the window's edge
                for (QPushButton* b : w.findChildren<QPushButton*>())
                    if (b->isVisible() && b->window() == &w && !InScrolledArea(b))
                        QVERIFY2(b->mapTo(&w, QPoint(0, b->height())).y() <= w.height(),
                                 qPrintable(name + ": " + b->text()));
                test::SaveScreenshot(&w, name + tag);
            };
            shoot(tq::View::StartPage, "desktop_start_page");
            for (int page = 1; page <= 4; ++page)
                shoot(PageView(page), QString("desktop_page%1").arg(page));
            shoot(tq::View::SetupPage, "desktop_setup_page");
            w.showView(tq::View::Page1);
            w.createPage(1)->findChild<QPushButton*>("Edit1")->click();
            QTest::qWait(400);
            test::SaveScreenshot(&w, "desktop_edit_page" + tag);
            w.runCommand("PhotoShow");
            shoot(tq::View::PhotoShowPage, "desktop_photo_show_page");
            QDir(web).removeRecursively(); // a build into a fresh folder asks nothing
            QDir().mkpath(web);
            w.runCommand("CreateFormOnly");
            shoot(tq::View::FinalPage, "desktop_final_page");
            QDir(web).removeRecursively();
            QDir().mkpath(web);
            w.runCommand("CreateFormHTMLCode");
            QTRY_COMPARE_WITH_TIMEOUT(w.currentView(), tq::View::Preview, 5000);
            QVERIFY(browserFillsThePreview());
            QTest::qWait(200);
            test::SaveScreenshot(&w, "desktop_preview" + tag);
        }
    }
};

QTEST_MAIN(DesktopTest)
#include "gui_desktop_test.moc"
