// SPDX-License-Identifier: GPL-3.0-or-later
// The recovery copy against a real crash: a second copy of this program puts
// rows into a started window and is killed (SIGKILL) once the copy is on disk;
// the window started again offers the rows back, and a save and a clean exit
// leave no copy behind.
#include "gui_test_support.h"
#include "main_window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>
#include <QtTest>
#include <cstdio>

using namespace tq::gui;

namespace {

constexpr const char* kChildFlag = "--edit-until-killed";

void PutRow(MainWindow& w, int row, const std::string& type, const std::string& text)
{
    auto& e = w.session().store.pages[0][static_cast<size_t>(row)];
    e.InputTypeName = type;
    e.AttributeText = text;
    w.refreshAll();
}

/// The child: starts on `docs`, changes two rows, says "ready" when the
/// recovery copy holds them, then waits to be killed.
int RunUntilKilled(int argc, char** argv)
{
    QApplication app(argc, argv);
    MainWindow w(QString::fromLocal8Bit(argv[2]));
    w.onExit = [] {};
    if (!w.start())
        return 2;
    w.show();
    PutRow(w, 3, "Email", "[Title=Your mail]\r\n");
    PutRow(w, 4, "Name", "[Title=Your name \"$x\\]\r\n");
    const QString copy = QString::fromStdString(w.session().DataFolder) + "/recovery.tqr";
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QFile f(copy);
        if (f.open(QIODevice::ReadOnly) && f.readAll().contains("Your name")) {
            poll.stop();
            std::puts("ready");
            std::fflush(stdout);
        }
    });
    poll.start(20);
    return QApplication::exec();
}

} // namespace

class RecoveryTest : public QObject
{
    Q_OBJECT
  private slots:
    void rowsSurviveAKillAndAreGoneAfterASaveAndAnExit()
    {
        QTemporaryDir docs;
        const QString data = test::PointAtDataFolder(docs);
        const QString copy = data + "/recovery.tqr";

        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(),
                    {kChildFlag, docs.path(), "-platform", QGuiApplication::platformName()});
        QElapsedTimer since;
        since.start();
        while (!child.readAllStandardOutput().contains("ready") && since.elapsed() < 60000)
            child.waitForReadyRead(1000);
        const qint64 edited = since.elapsed();
        QVERIFY2(edited < 60000, "the child never wrote its recovery copy");
        child.kill();
        QVERIFY(child.waitForFinished(10000));
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);
        QVERIFY(QFile::exists(copy));

        MainWindow w(docs.path());
        w.onExit = [] {};
        {
            test::DialogScript script;
            script.press(QMessageBox::Yes);
            QVERIFY(w.start());
            QCOMPARE(script.seen.size(), 1);
            QVERIFY2(script.seen[0].startsWith("RESTORE ENTRIES: Tarnquill did not end properly"),
                     qPrintable(script.seen[0]));
        }
        w.show();
        const auto& rows = w.session().store.pages[0];
        QCOMPARE(rows[3].InputTypeName, std::string("Email"));
        QCOMPARE(rows[4].AttributeText, std::string("[Title=Your name \"$x\\]\r\n"));
        QCOMPARE(w.currentView(), tq::View::Page1);

        // saved under a name typed without its extension: the title names the file
        {
            test::DialogScript script;
            script.choose(data + "/club");
            w.runCommand("SaveForm");
            QVERIFY2(script.done(), qPrintable(script.seen.join(" | ")));
        }
        QVERIFY(QFile::exists(data + "/club.fms"));
        QCOMPARE(w.windowTitle(), QString("club.fms \u2014 Tarnquill"));
        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(copy), 2000);

        // a change after the save is kept within a second; a clean exit after
        // the change is saved leaves nothing
        PutRow(w, 5, "Phone", "[Title=p]\r\n");
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(copy), 1000);
        {
            test::DialogScript script;
            script.choose(data + "/club.fms").press(QMessageBox::Yes).press(QMessageBox::Yes);
            w.runCommand("SaveForm");
            w.runCommand("Exit");
            QVERIFY2(script.done(), qPrintable(script.seen.join(" | ")));
        }
        QVERIFY(!QFile::exists(copy));

        // and the next start asks nothing
        MainWindow again(docs.path());
        again.onExit = [] {};
        test::DialogScript none;
        QVERIFY(again.start());
        QCOMPARE(none.seen, QStringList());
        qInfo("the child had its copy on disk %lld ms after it was started", edited);
    }
};

int main(int argc, char** argv)
{
    if (argc >= 3 && qstrcmp(argv[1], kChildFlag) == 0)
        return RunUntilKilled(argc, argv);
    QApplication app(argc, argv);
    RecoveryTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "gui_recovery_test.moc"
