// SPDX-License-Identifier: GPL-3.0-or-later
#include "create_page.h"
#include "gui_test_support.h"
#include "main_window.h"
#include "setup_page.h"
#include "start_page.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace tq::gui;

namespace {

using Started = test::StartedWindow;

} // namespace

class SetupPageTest : public QObject
{
    Q_OBJECT
  private slots:
    void fieldsSaveAndImportIntoTheSiteMenus()
    {
        Started app;
        MainWindow& w = *app.w;
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        w.runCommand("SetupPage");
        QCOMPARE(w.currentView(), tq::View::SetupPage);
        auto* name1 = w.setupPage()->findChild<QLineEdit*>("txtMenuName1");
        QVERIFY(name1);
        QCOMPARE(w.setupPage()->findChild<QLineEdit*>("txtMenuName0")->text(), QString("Test"));
        QTest::keyClicks(name1, "Shop");
        QTest::keyClicks(w.setupPage()->findChild<QLineEdit*>("txtWebFolderPath1"), "/srv/shop");
        QCOMPARE(QString::fromStdString(w.session().setup.rows[1].MenuName), QString("Shop"));
        test::SaveScreenshot(&w, "setup_page");
        {
            test::DialogScript script;
            script.press(QMessageBox::Yes).press(QMessageBox::Ok);
            QVERIFY(test::Trigger(&w, "SetupPageOnly"));
            QCOMPARE(script.seen.size(), 2);
            QVERIFY(script.seen[1].startsWith("DONE: The Setup Page has been exported successfully"));
        }
        QVERIFY(QFile::exists(app.data + "/setup.imp"));
        // the site menus change only through an import
        QVERIFY(!w.startPage()->findChild<QAction*>("Web2")->isVisible());
        {
            test::DialogScript script;
            script.press(QMessageBox::Yes).press(QMessageBox::No).press(QMessageBox::Ok);
            QVERIFY(test::Trigger(&w, "SetupPageOnlyOpen"));
            QCOMPARE(script.seen.last(), QString("SETUP: The new imported setup file will not be saved"));
        }
        for (QWidget* page : {static_cast<QWidget*>(w.startPage()), static_cast<QWidget*>(w.createPage(3))}) {
            QCOMPARE(page->findChild<QAction*>("Web2")->text(), QString("Shop"));
            QVERIFY(page->findChild<QAction*>("Web2")->isVisible());
            QVERIFY(page->findChild<QAction*>("LivePreview2")->isVisible());
        }
        w.runCommand("SetupExit");
        QCOMPARE(w.currentView(), tq::View::StartPage);
    }

    void exitGoesBackToThePageItWasCalledFrom()
    {
        Started app;
        MainWindow& w = *app.w;
        w.showView(tq::View::Page3);
        QVERIFY(test::Trigger(&w, "SetupPage"));
        QCOMPARE(w.currentView(), tq::View::SetupPage);
        // the Setup page's own Exit asks nothing
        test::DialogScript script;
        QVERIFY(test::Trigger(&w, "Exit"));
        QCOMPARE(w.currentView(), tq::View::Page3);
        QVERIFY(script.seen.isEmpty());
    }

    void rightPressCopiesAFieldAndFindFillsAToolPath()
    {
        Started app;
        MainWindow& w = *app.w;
        w.runCommand("SetupPage");
        auto* folder = w.setupPage()->findChild<QLineEdit*>("txtWebFolderPath0");
        {
            test::DialogScript script;
            script.press(QMessageBox::Ok);
            emit folder->customContextMenuRequested(QPoint(4, 4));
            QCOMPARE(script.seen, QStringList{"DONE: " + folder->text() + "\n\nhas been placed on the clipbaord"});
        }
        QCOMPARE(QApplication::clipboard()->text(), folder->text());
        const QString program = app.data + "/browser";
        QFile f(program);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        {
            test::DialogScript script;
            script.choose(program).press(QMessageBox::Ok);
            w.setupPage()->findChild<QPushButton*>("cmdFindBrowser")->click();
            QVERIFY(script.done());
        }
        QCOMPARE(w.setupPage()->findChild<QLineEdit*>("txtBrowserPath")->text(), program);
        QCOMPARE(QString::fromStdString(w.session().setup.BrowserPath), program);
    }
};

QTEST_MAIN(SetupPageTest)
#include "gui_setup_page_test.moc"
