// SPDX-License-Identifier: GPL-3.0-or-later
// "Test locally": the project served by PHP on 127.0.0.1, a FORM submitted
// in the browser view and its mail caught in the side panel.
#include "gui_test_support.h"
#include "local_test_window.h"
#include "qt_port.h"
#include "store/project_file.h"
#include "store/text_file.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

using namespace tq::gui;

namespace {

// The shipped sample FORM cut down to the Entries of `keep` (Setup always
// stays): the full sample holds Cell Phone Number, whose script PHP refuses.
std::string SampleWith(const QStringList& keep)
{
    QFile f(QString(TQ_DATA_DIR) + "/samples/sample_form.fms");
    if (!f.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bar = "********************************\r\n";
    const QByteArray all = f.readAll();
    std::string out;
    qsizetype at = all.indexOf(bar);
    while (at >= 0) {
        const qsizetype typeEnd = all.indexOf("\r\n", at + bar.size());
        const QByteArray type = all.mid(at + bar.size(), typeEnd - at - bar.size());
        qsizetype next = all.indexOf(bar, typeEnd + 2 + bar.size());
        const QByteArray block = all.mid(at, next < 0 ? -1 : next - at);
        if (type == "Setup" || keep.contains(QString::fromLatin1(type)))
            out += block.toStdString();
        at = next;
    }
    return out;
}

void LoadProject(tq::Session& s, const std::string& bytes)
{
    s.store.state.ProjectMode = tq::model::Mode::Form;
    auto reader = tq::store::ReaderOf(bytes);
    tq::store::ReadEntries(s.store, reader);
}

QVariant RunJs(QWebEngineView* view, const QString& js)
{
    QVariant result;
    bool done = false;
    view->page()->runJavaScript(js, [&](const QVariant& v) {
        result = v;
        done = true;
    });
    if (!QTest::qWaitFor([&] { return done; }, 10000))
        return {};
    return result;
}

} // namespace

class LocalTestWindowTest : public QObject
{
    Q_OBJECT
  private slots:
    void withoutPhpItSaysHowToGetIt()
    {
        tq::Session s;
        QtPort port(nullptr);
        LocalTestWindow w;
        w.phpProgram = "/no/such/php";
        bool started = true;
        const QString seen = test::AnswerBox([&] { started = w.start(s, port); });
        QVERIFY(!started);
        QVERIFY2(seen.startsWith("PHP IS NOT INSTALLED: "), qPrintable(seen));
        QVERIFY(seen.contains("sudo apt-get install php-cli"));
    }

    void aSubmittedFormsMailAppearsInThePanel()
    {
        if (QStandardPaths::findExecutable("php").isEmpty())
            QSKIP("php is not installed");
        QTemporaryDir data;
        tq::Session s;
        s.DataFolder = data.path().toStdString();
        LoadProject(s, SampleWith({"Name", "Email", "Comments Not Required", "Horizontal Line"}));
        const std::string before = s.store.pages[0][0].AttributeText;
        QtPort port(nullptr);
        LocalTestWindow w;
        QSignalSpy loaded(w.view(), &QWebEngineView::loadFinished);
        QVERIFY(w.start(s, port));
        // the project keeps its own web folder: only a copy was pointed at the test site
        QCOMPARE(s.store.pages[0][0].AttributeText, before);
        QVERIFY(w.url().startsWith("http://127.0.0.1:"));
        QVERIFY(w.url().endsWith("/formtql.htm"));
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QVERIFY(loaded.wait(20000));
        QCOMPARE(loaded.last().at(0).toBool(), true);
        const QVariant filled =
            RunJs(w.view(), "var f = document.forms[0]; var n = [];"
                            "f.querySelectorAll('input[type=text], textarea').forEach(function (t) {"
                            "  t.value = t.name.indexOf('email') == 0 ? 'ann@tarnquill.example' : 'Ann Example';"
                            "  n.push(t.name); });"
                            "f.submit(); n.join(',');");
        QVERIFY2(filled.toString().contains("name"), qPrintable(filled.toString()));
        QTRY_COMPARE_WITH_TIMEOUT(w.mailList()->count(), 1, 20000);
        const QString details = w.mailDetails()->toPlainText();
        QVERIFY2(details.contains("webmaster@tarnquill.example"), qPrintable(details));
        QVERIFY2(details.contains("Ann Example"), qPrintable(details));
        QVERIFY(details.contains("Headers"));
        QVERIFY(details.contains("Body"));
        QTest::qWait(800); // the page the visitor lands on
        test::SaveScreenshot(&w, "local_test_mail");
        // the next test is served by the running PHP at once, its folder and mails fresh
        const QString firstUrl = w.url();
        const QString mails = w.mailFolder();
        QVERIFY(w.start(s, port));
        QCOMPARE(w.url(), firstUrl);
        QCOMPARE(w.mailList()->count(), 0);
        QVERIFY(QDir(mails).entryList(QDir::Files).isEmpty());
        QVERIFY(loaded.wait(20000));
        QCOMPARE(loaded.last().at(0).toBool(), true);
        QVERIFY(RunJs(w.view(), "document.forms.length").toInt() >= 1);
        w.stop();
        QCOMPARE(w.mailList()->count(), 0);
        QVERIFY(w.mailFolder().isEmpty());
        // once stopped, a start brings PHP up again
        QVERIFY(w.start(s, port));
        QVERIFY(loaded.wait(20000));
        QCOMPARE(loaded.last().at(0).toBool(), true);
        w.stop();
    }
};

QTEST_MAIN(LocalTestWindowTest)
#include "gui_local_test_test.moc"
