// SPDX-License-Identifier: GPL-3.0-or-later
// The photo show page: its controls over the session's record, a show saved,
// reopened from the Recent menu and built through the page.
#include "gui_test_support.h"
#include "main_window.h"
#include "photo_show_page.h"
#include "qt_port.h"

#include <QAbstractButton>
#include <QAction>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFrame>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace tq::gui;

namespace {

// The Qt port with its file dialogs answered from a queue, so that the test
// does not depend on the file dialog's own widgets; everything else is real.
class FilePort : public QtPort
{
  public:
    FilePort() : QtPort(nullptr) {}
    std::optional<std::string> openFileDialog(const tq::FileDialogOptions& options) override { return next(options); }
    std::optional<std::string> saveFileDialog(const tq::FileDialogOptions& options) override { return next(options); }
    QStringList files;
    QStringList titles;

  private:
    std::optional<std::string> next(const tq::FileDialogOptions& options)
    {
        titles << QString::fromStdString(options.title);
        if (files.isEmpty())
            return std::nullopt;
        return files.takeFirst().toStdString();
    }
};

template <typename T> T* Child(QWidget* page, const char* name)
{
    T* w = page->findChild<T*>(name);
    if (!w)
        qWarning("no widget %s", name);
    return w;
}

} // namespace

class PhotoShowPageTest : public QObject
{
    Q_OBJECT
  private slots:
    void controlsWriteTheRecordAndTheFadeSwitchFollows()
    {
        tq::Session s;
        QtPort port(nullptr);
        PhotoShowPage page(s, port);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        auto* title = Child<QLineEdit>(&page, "BrowserTitle");
        title->selectAll();
        QTest::keyClicks(title, "Our Trip");
        QCOMPARE(s.photoShow.settings.BrowserTitle, std::string("Our Trip"));
        Child<QComboBox>(&page, "UseFading")->setCurrentText("NO");
        QCOMPARE(s.photoShow.settings.UseFading, std::string("NO"));
        for (const char* name : {"FadeMode", "FadeSteps", "FadeDelay"})
            QVERIFY2(!Child<QComboBox>(&page, name)->isEnabled(), name);
        Child<QComboBox>(&page, "UseFading")->setCurrentText("YES");
        QVERIFY(Child<QComboBox>(&page, "FadeSteps")->isEnabled());
        // the colour dialog sets the colour (red in the low byte) and the sample panel
        {
            test::DialogScript colour;
            colour.then([](QWidget* w) {
                auto* dlg = qobject_cast<QColorDialog*>(w);
                QVERIFY(dlg);
                dlg->setCurrentColor(QColor(0x10, 0x20, 0x30));
                dlg->accept();
            });
            Child<QPushButton>(&page, "BackgroundColor")->click();
            QVERIFY(colour.done());
        }
        QCOMPARE(s.photoShow.settings.BackgroundColor, 0x302010L);
        QVERIFY(Child<QFrame>(&page, "BackgroundSample")->styleSheet().contains("#102030"));
        // commands that need a build wait for one; the recent slots keep their names
        QVERIFY(!Child<QPushButton>(&page, "ViewShowLive")->isEnabled());
        QVERIFY(page.findChild<QAction*>("History100"));
        QVERIFY(!page.findChild<QAction*>("History10"));
        bool back = false;
        page.onExit = [&] { back = true; };
        QVERIFY(test::Trigger(&page, "Exit"));
        QVERIFY(back);
    }

    void theWindowOpensThePageAndItsExitGoesBack()
    {
        QTemporaryDir docs;
        MainWindow w(docs.path());
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QVERIFY(w.findChild<QAction*>("TestLocally"));
        w.runCommand("PhotoShow");
        QCOMPARE(w.currentView(), tq::View::PhotoShowPage);
        auto* page = w.findChild<PhotoShowPage*>("PhotoShowPage");
        QVERIFY(page && page->isVisible());
        QVERIFY(test::Trigger(&w, "Exit"));
        QCOMPARE(w.currentView(), tq::View::StartPage);
    }

    void aShowIsSavedReopenedFromRecentAndBuilt()
    {
        QTemporaryDir data;
        QTemporaryDir images;
        QFile pic(images.filePath("a.jpg"));
        QVERIFY(pic.open(QIODevice::WriteOnly));
        pic.write("not really a picture");
        pic.close();
        tq::Session s;
        s.DataFolder = data.path().toStdString();
        FilePort port;
        PhotoShowPage page(s, port);
        page.programFolder = TQ_DATA_DIR;
        page.resize(1100, 860);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        auto* folder = Child<QLineEdit>(&page, "ImageFolder");
        folder->setText(images.path());
        Child<QLineEdit>(&page, "ShowFileName")->setText("trip.shw");
        Child<QComboBox>(&page, "ColumnsPerLine")->setCurrentText("4");
        Child<QComboBox>(&page, "FadeMode")->setCurrentText("square");
        const QString file = images.filePath("trip.shw");
        port.files << file;
        QVERIFY(test::Trigger(&page, "Save"));
        QCOMPARE(port.titles.last(), QString("Enter the Filename"));
        QVERIFY(QFile::exists(file));
        const QByteArray bytes = [&] {
            QFile f(file);
            f.open(QIODevice::ReadOnly);
            return f.readAll();
        }();
        QVERIFY(bytes.contains("\r\n5 - default\r\n4\r\nYES\r\nImage Browser\r\nsquare\r\n6 - default\r\n"));
        QVERIFY(s.run.photoMenu[0].visible);
        // change the page, then take the show back from the Recent menu
        folder->setText("/somewhere/else");
        Child<QComboBox>(&page, "ColumnsPerLine")->setCurrentText("8");
        QVERIFY(test::Trigger(&page, "History1"));
        QCOMPARE(folder->text(), images.path());
        QCOMPARE(Child<QComboBox>(&page, "ColumnsPerLine")->currentText(), QString("4"));
        QCOMPARE(s.photoShow.settings.FadeMode, std::string("square"));
        // BUILD PHOTO SHOW asks for the template, writes the show and says DONE
        port.files << QString(TQ_DATA_DIR) + "/photodata.php";
        const QString done = test::AnswerBox([&] { Child<QPushButton>(&page, "BuildPhotoShow")->click(); });
        QVERIFY2(done.startsWith("DONE"), qPrintable(done));
        QCOMPARE(port.titles.last(), QString("Where is photodata.php located?"));
        QVERIFY(QFile::exists(images.filePath("photoshow.php")));
        QVERIFY(QFile::exists(images.filePath("readmeshow.txt")));
        QCOMPARE(Child<QLineEdit>(&page, "OutputLine")->text(),
                 QString("https://www.tarnquill.example/test/slideshow/images/photoshow.php"));
        QVERIFY(Child<QPushButton>(&page, "ViewShowLive")->isEnabled());
        test::SaveScreenshot(&page, "photo_show_page");
    }
};

QTEST_MAIN(PhotoShowPageTest)
#include "gui_photo_show_test.moc"
