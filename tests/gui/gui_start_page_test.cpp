// SPDX-License-Identifier: GPL-3.0-or-later
#include "create_page.h"
#include "gui_test_support.h"
#include "main_window.h"
#include "start_page.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace tq::gui;

namespace {

QString Label(QWidget* page, const char* name)
{
    auto* l = page->findChild<QLabel*>(name);
    return l ? l->text() : QString("(no %1)").arg(name);
}

QAction* Action(QWidget* page, const QString& name)
{
    return page->findChild<QAction*>(name);
}

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

} // namespace

class StartPageTest : public QObject
{
    Q_OBJECT
  private slots:
    void startWithNoFolderAsksForOneAndShowsTheStartPage()
    {
        QTemporaryDir docs;
        const QString data = docs.filePath("my forms");
        MainWindow w(docs.path());
        bool started = false;
        {
            test::DialogScript script;
            script.type("").press(QMessageBox::Ok).type(data);
            started = w.start();
            QCOMPARE(script.seen, (QStringList{"FOLDER PATH: Choose the folder path where the forms will be saved",
                                               "NO FOLDER PATH WAS SELECTED: You must choose a folder path before "
                                               "you can continue",
                                               "FOLDER PATH: Choose the folder path where the forms will be saved"}));
        }
        QVERIFY(started);
        QCOMPARE(QString::fromStdString(w.session().DataFolder), data);
        QVERIFY(QFile::exists(docs.filePath("tarnquill/forms/Tarnquill.stt")));
        QVERIFY(QFile::exists(data + "/FormHistory.txt"));
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QCOMPARE(w.currentView(), tq::View::StartPage);
        QCOMPARE(Label(w.startPage(), "lblActive"), QString("FORM IS ACTIVE"));
        QCOMPARE(Label(w.startPage(), "lblFile"), QString("NOTHING IS CURRENTLY LOADED"));
        // no setup file: the first site entry reads "Test", the others are hidden
        QCOMPARE(Action(w.startPage(), "Web1")->text(), QString("Test"));
        QVERIFY(Action(w.startPage(), "Web1")->isVisible());
        QVERIFY(!Action(w.startPage(), "Web2")->isVisible());
        QVERIFY(!Action(w.startPage(), "File1")->isVisible());
        test::SaveScreenshot(&w, "start_page");
        // Edit shows Page 1 with the focus on its first row
        QVERIFY(test::Trigger(&w, "ViewFormSurvey"));
        QCOMPARE(w.currentView(), tq::View::Page1);
        QVERIFY(!Action(w.createPage(1), "PreviousPage"));
        QVERIFY(test::Trigger(&w, "NextPage"));
        QCOMPARE(w.currentView(), tq::View::Page2);
        QVERIFY(test::Trigger(&w, "PreviousPage"));
        QCOMPARE(w.currentView(), tq::View::Page1);
        test::SaveScreenshot(&w, "page1_start");
        w.resize(1920, 1080);
        QTest::qWait(50);
        test::SaveScreenshot(&w, "page1_start_1920");
    }

    void exitAsksAndNoKeepsTheProgramRunning()
    {
        QTemporaryDir docs;
        MainWindow w(docs.path());
        bool ended = false;
        w.onExit = [&] { ended = true; };
        w.show();
        {
            test::DialogScript script;
            script.press(QMessageBox::No);
            w.runCommand("Exit1");
            QCOMPARE(script.seen, QStringList{"EXIT: Are you sure you want to exit?"});
        }
        QVERIFY(!ended);
        {
            test::DialogScript script;
            script.press(QMessageBox::Yes);
            w.runCommand("Exit");
        }
        QVERIFY(ended);
    }

    void closingTheStartPageRemovesTheScratchFilesButExitDoesNot()
    {
        QTemporaryDir docs;
        const QString data = test::PointAtDataFolder(docs);
        const QStringList scratch{"temp.txt", "temp11.txt", "downtemp.txt", "browsetemp.txt", "Preview.htm"};
        for (const QString& name : scratch)
            WriteFile(data + "/" + name, "x\r\n");
        WriteFile(data + "/keep.fms", "x\r\n");
        MainWindow w(docs.path());
        bool ended = false;
        w.onExit = [&] { ended = true; };
        QVERIFY(w.start());
        w.show();
        {
            test::DialogScript script;
            script.press(QMessageBox::Yes);
            w.runCommand("Exit");
        }
        QVERIFY(ended);
        QVERIFY(QFile::exists(data + "/temp.txt"));
        ended = false;
        w.close();
        QVERIFY(ended);
        for (const QString& name : scratch)
            QVERIFY2(!QFile::exists(data + "/" + name), qPrintable(name));
        QVERIFY(QFile::exists(data + "/keep.fms"));
    }

    void everyMenuEntryOfTheStartAndCreatePagesRunsACommand()
    {
        test::StartedWindow app;
        QVERIFY(app.started);
        MainWindow& w = *app.w;
        // the tool commands and the later pages register on first use
        w.editPage();
        w.finalPage();
        QStringList missing;
        for (QWidget* page : {static_cast<QWidget*>(w.startPage()), static_cast<QWidget*>(w.createPage(1)),
                              static_cast<QWidget*>(w.createPage(2))}) {
            for (QAction* a : page->findChildren<QAction*>()) {
                const QString name = a->objectName();
                if (a->menu() || a->isSeparator() || name.isEmpty())
                    continue;
                if (!w.hasCommand(name))
                    missing << page->objectName() + "/" + name;
            }
        }
        missing.removeDuplicates();
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(", ")));
    }

    void aboutBoxShowsTheVersionAndHasNoSystemInformation()
    {
        QTemporaryDir docs;
        MainWindow w(docs.path());
        w.show();
        QString version;
        QStringList inner;
        test::DialogScript script;
        script.then([&](QWidget* about) {
            QCOMPARE(about->windowTitle(), QString("About Tarnquill"));
            version = about->findChild<QLabel*>("lblVersion")->text();
            test::DialogScript info;
            info.press(QMessageBox::Ok);
            about->findChild<QPushButton*>("cmdSysInfo")->click();
            inner = info.seen;
            about->findChild<QPushButton*>("cmdOK")->click();
        });
        w.runCommand("About");
        QCOMPARE(version, QString("Version 2.00.0002"));
        QCOMPARE(inner, QStringList{"Tarnquill: System Information Is Unavailable At This Time"});
        QVERIFY(script.done());
    }
};

QTEST_MAIN(StartPageTest)
#include "gui_start_page_test.moc"
