// SPDX-License-Identifier: GPL-3.0-or-later
// The launchers through the Qt port: real programs (a script that records its
// arguments and working folder) started detached, and the missing ones told.
#include "gui_test_support.h"
#include "qt_port.h"
#include "tool_commands.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QtTest>

using namespace tq::gui;

namespace {

// A program that writes its working folder and each argument, one a line, to `record`.
QString WriteRecorder(const QString& path, const QString& record)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    f.open(QIODevice::WriteOnly);
    f.write(QString("#!/bin/sh\n{ pwd; for a in \"$@\"; do echo \"arg:$a\"; done; } > '%1.tmp' && mv '%1.tmp' '%1'\n")
                .arg(record)
                .toUtf8());
    f.close();
    f.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return path;
}

QString ReadRecord(const QString& record)
{
    QFile f(record);
    if (!QTest::qWaitFor([&] { return f.exists(); }, 5000))
        return "(nothing recorded)";
    f.open(QIODevice::ReadOnly);
    return QString::fromUtf8(f.readAll());
}

} // namespace

class ToolCommandsTest : public QObject
{
    Q_OBJECT
  private slots:
    void launchersStartRealProgramsDetached()
    {
        QTemporaryDir dir;
        tq::Session s;
        QtPort port(nullptr);
        QHash<QString, std::function<void()>> commands;
        RegisterToolCommands(commands, s, port);
        const QString ftpFolder = dir.filePath("ftp tools/bin");
        s.setup.FTPProgramPath = WriteRecorder(ftpFolder + "/ftp.sh", dir.filePath("ftp.txt")).toStdString();
        commands["FTP"]();
        QCOMPARE(ReadRecord(dir.filePath("ftp.txt")), ftpFolder + "\n");
        s.setup.WebEditorPath = WriteRecorder(dir.filePath("edit.sh"), dir.filePath("edit.txt")).toStdString();
        s.setup.rows[2].WebFolderPath = "/home/me/My Web Sites/club";
        commands["Web3"]();
        QVERIFY(ReadRecord(dir.filePath("edit.txt")).endsWith("\narg:/home/me/My Web Sites/club\n"));
        s.setup.BrowserPath = WriteRecorder(dir.filePath("browse.sh"), dir.filePath("browse.txt")).toStdString();
        s.setup.rows[14].WebServerPath = "https://club.example/index.htm";
        commands["LivePreview15"]();
        QVERIFY(ReadRecord(dir.filePath("browse.txt")).endsWith("\narg:https://club.example/index.htm\n"));
    }

    void missingProgramsAreTold()
    {
        tq::Session s;
        QtPort port(nullptr);
        QHash<QString, std::function<void()>> commands;
        RegisterToolCommands(commands, s, port);
        s.setup.FTPProgramPath = "/no/such/ftp";
        QCOMPARE(test::AnswerBox(commands["FTP"]),
                 QString("Error launching FTP CLIENT : No such file or directory\nThe FTP path in "
                         "SETUP does not exist.\n\nGo to setup and enter the full path "
                         "of the FTP program that you will be using"));
        s.setup.FTPProgramPath.clear();
        QVERIFY(test::AnswerBox(commands["FTP"]).startsWith("Error launching FTP CLIENT: No FTP program was selected"));
        s.setup.rows[1].WebFolderPath = "/srv/site";
        s.setup.WebEditorPath = "/no/such/editor";
        QVERIFY(test::AnswerBox(commands["Web2"])
                    .startsWith("Error launching Web Editor: The Path does not exist. No such file"));
        QCOMPARE(test::AnswerBox(commands["LivePreview2"]),
                 QString("NO ENTRY FOUND: To add a menu item to the list, go to setup and add the new web folder "
                         "to the list"));
        s.setup.rows[1].WebServerPath = "https://x.example/";
        s.setup.BrowserPath = "/no/such/browser";
        QVERIFY(test::AnswerBox(commands["LivePreview2"])
                    .startsWith("Error launching Internet Browser: No such file or directory"));
        for (const char* name : {"HomePage", "SampleForms", "CheckForUpdate", "ViewTarnquillFolder", "ViewFolder",
                                 "ShowOutputInEditor", "Web15", "LivePreview1"})
            QVERIFY2(commands.contains(name), name);
    }

    void fileDialogsProposeTheNameTheyAreGiven()
    {
        QTemporaryDir dir;
        const QString data = dir.filePath("data");
        QDir().mkpath(data);
        QtPort port(nullptr);
        // what the dialog shows: its folder and file name, and its filters
        QString proposed;
        QStringList filters;
        auto read = [&](QWidget* w) {
            auto* dialog = qobject_cast<QFileDialog*>(w);
            if (dialog) {
                auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
                proposed = QDir(dialog->directory()).filePath(name ? name->text() : QString());
                filters = dialog->nameFilters();
            }
            static_cast<QDialog*>(w)->reject();
        };
        {
            // a full path as the name stays as it is
            test::DialogScript script;
            script.then(read);
            tq::FileDialogOptions o{"Enter the Filename", data.toStdString(), (data + "/default.txt").toStdString(),
                                    "Default Files (*.txt) | *.txt"};
            QVERIFY(!port.saveFileDialog(o));
            QCOMPARE(proposed, data + "/default.txt");
            QCOMPARE(filters, QStringList{"Default Files (*.txt)"});
        }
        {
            // a bare name goes into the folder, and the template filter lists that one file
            test::DialogScript script;
            script.then(read);
            tq::FileDialogOptions o{"Where is photodata.php located?", data.toStdString(), "photodata.php",
                                    "Default File (*.php) | photodata.php"};
            QVERIFY(!port.openFileDialog(o));
            QCOMPARE(proposed, data + "/photodata.php");
            QCOMPARE(filters, QStringList{"Default File (photodata.php)"});
        }
    }
};

QTEST_MAIN(ToolCommandsTest)
#include "gui_tool_commands_test.moc"
