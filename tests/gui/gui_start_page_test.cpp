// SPDX-License-Identifier: GPL-3.0-or-later
#include "create_page.h"
#include "gui_test_support.h"
#include "main_window.h"
#include "start_page.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QtTest>

using namespace tq::gui;

class StartPageTest : public QObject
{
    Q_OBJECT
  private slots:
    void startsOnTheStartPageWithItsMenus()
    {
        QTemporaryDir docs;
        MainWindow w(docs.path());
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QCOMPARE(w.currentView(), tq::View::StartPage);
        for (const char* name : {"CreateNewForm", "openform", "SaveForm", "CreateSurvey", "OpenSurvey", "File1",
                                 "File15", "FileHistory15", "CreateFormOnly", "CreateFormHTMLCode", "LivePreview1",
                                 "Web15", "SetupPage", "SelectTQL", "ViewTarnquillFolder", "CheckForUpdate", "About"})
            QVERIFY2(w.startPage()->findChild<QAction*>(name), name);
        auto* mode = w.startPage()->findChild<QLabel*>("lblActive");
        QVERIFY(mode);
        QCOMPARE(mode->text(), QString("FORM IS ACTIVE"));
        test::SaveScreenshot(&w, "start_page");
    }

    void exitAsksAndNoKeepsTheProgramRunning()
    {
        QTemporaryDir docs;
        MainWindow w(docs.path());
        bool ended = false;
        w.onExit = [&] { ended = true; };
        w.show();
        QString seen;
        test::AnswerNextDialog([&](QWidget* box) {
            seen = test::DescribeBox(box);
            qobject_cast<QMessageBox*>(box)->button(QMessageBox::No)->click();
        });
        w.runCommand("Exit1");
        QCOMPARE(seen, QString("EXIT: Are you sure you want to exit?"));
        QVERIFY(!ended);
        test::AnswerNextDialog(
            [&](QWidget* box) { qobject_cast<QMessageBox*>(box)->button(QMessageBox::Yes)->click(); });
        w.runCommand("Exit");
        QVERIFY(ended);
    }
};

QTEST_MAIN(StartPageTest)
#include "gui_start_page_test.moc"
