// SPDX-License-Identifier: GPL-3.0-or-later
// The edit page, the edit window, the previews and the final page, driven by
// mouse through their object names.
#include "create_page.h"
#include "edit_page.h"
#include "edit_window.h"
#include "entry_table_model.h"
#include "final_page.h"
#include "gui_test_support.h"
#include "main_window.h"
#include "model/catalogue.h"
#include "pick_list.h"
#include "preview_window.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

using namespace tq::gui;

namespace {

EditPage* OpenEdit(MainWindow& w, int page, int row)
{
    w.showView(static_cast<tq::View>(static_cast<int>(tq::View::Page1) + page - 1));
    w.createPage(page)->findChild<QPushButton*>(QString("Edit%1").arg(row))->click();
    return w.editPage();
}

bool WaitLoaded(QWebEngineView* web)
{
    QSignalSpy spy(web, &QWebEngineView::loadFinished);
    return spy.wait(15000) && spy.takeFirst().at(0).toBool();
}

} // namespace

class EditPageTest : public QObject
{
    Q_OBJECT
  private slots:
    void aTitleEditedInTheEditWindowShowsOnTheCreatePage()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        EditPage* edit = OpenEdit(w, 1, 1);
        QCOMPARE(w.currentView(), tq::View::EditPage);
        QCOMPARE(edit->findChild<QLabel*>("lblEditCaption")->text(),
                 QString("Make your changes for Name and then select Exit"));
        test::SaveScreenshot(&w, "edit_page_name");
        // the caption of what is shown stands in front of the file's name (the rows are not saved)
        QCOMPARE(w.windowTitle(), QString("EDIT PAGE \u2014 *Untitled \u2014 Tarnquill"));
        const int title = edit->rowOf("Title");
        edit->findChild<QPushButton*>(QString("Edit%1").arg(title))->click();
        auto* window = edit->editWindow();
        QVERIFY(window->isVisible());
        QCOMPARE(w.windowTitle(), QString("EDIT WINDOW \u2014 *Untitled \u2014 Tarnquill"));
        QCOMPARE(window->editor()->toPlainText(), QString("Enter your full name"));
        window->editor()->setPlainText("Your full name\nplease");
        test::SaveScreenshot(&w, "edit_window");
        window->findChild<QPushButton*>("ExitEditWindow")->click();
        QVERIFY(!window->isVisible());
        QCOMPARE(w.windowTitle(), QString("EDIT PAGE \u2014 *Untitled \u2014 Tarnquill"));
        QVERIFY(test::Trigger(&w, "Exit"));
        QCOMPARE(w.currentView(), tq::View::Page1);
        QCOMPARE(w.windowTitle(), QString("*Untitled \u2014 Tarnquill"));
        QVERIFY(app.at(1, 1).AttributeText.find("[Title=Your full name\\nplease]\r\n") != std::string::npos);
        QVERIFY(app.at(1, 1).highlight == tq::model::Highlight::Green);
        auto* model = w.createPage(1)->model();
        const QString shown = model->data(model->index(1, EntryTableModel::ColText), Qt::DisplayRole).toString();
        QVERIFY2(shown.contains("Your full name"), qPrintable(shown));
    }

    void aFailingCheckKeepsThePageOpenWithTheRowRed()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        auto& s = w.session();
        s.store.state.ProjectMode = tq::model::Mode::Survey;
        tq::model::BuildCatalogue(s.catalogue, s.settings, s.store.state);
        app.put(1, 1, "Title Shade");
        auto& text = w.session().store.pages[0][1].AttributeText;
        const auto at = text.find("Title Shade Width=");
        QVERIFY(at != std::string::npos);
        text.replace(at + 18, text.find(']', at) - at - 18, "40");
        const std::string before = text;
        EditPage* edit = OpenEdit(w, 1, 1);
        const int row = edit->rowOf("Title Shade Width");
        QCOMPARE(qobject_cast<QComboBox*>(edit->valueWidget(row))->currentText(), QString("40"));
        test::DialogScript script;
        script.press(QMessageBox::Ok);
        QVERIFY(test::Trigger(&w, "Exit"));
        QVERIFY(script.done());
        QCOMPARE(script.seen.value(0),
                 QString("ERROR: TITLE SHADE WIDTH\nMUST HAVE A % AFTER THE TITLE SHADE WIDTH\nEXAMPLE: 40%"));
        QCOMPARE(w.currentView(), tq::View::EditPage);
        QVERIFY(edit->valueWidget(row)->styleSheet().contains("#ff0000"));
        QCOMPARE(w.focusWidget(), edit->valueWidget(row));
        QCOMPARE(w.session().store.pages[0][1].AttributeText, before);
        test::SaveScreenshot(&w, "edit_page_failed_row");
        // Abort with errors asks first; No stays, Yes leaves the text as it was
        script.press(QMessageBox::No);
        QVERIFY(test::Trigger(&w, "Abort"));
        QVERIFY(script.seen.last().startsWith("ABORT: THERE ARE ERRORS ON THE EDIT PAGE\nYOUR SURVEY WILL NOT BUILD"));
        QCOMPARE(w.currentView(), tq::View::EditPage);
        script.press(QMessageBox::Yes);
        QVERIFY(test::Trigger(&w, "Abort"));
        QVERIFY(script.done());
        QCOMPARE(w.currentView(), tq::View::Page1);
        QCOMPARE(w.session().store.pages[0][1].AttributeText, before);
    }

    void aColourChangePaintsTheFieldAndKeepsTheDefault()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.useWebFolder();
        EditPage* edit = OpenEdit(w, 1, 0);
        test::SaveScreenshot(&w, "edit_page_setup");
        const int row = edit->rowOf("Frame Color");
        test::DialogScript script;
        script.then([](QWidget* box) {
            auto* dialog = qobject_cast<QColorDialog*>(box);
            QVERIFY(dialog);
            dialog->setCurrentColor(QColor(0, 0, 255));
            dialog->accept();
        });
        edit->findChild<QPushButton*>(QString("ChangeColor%1").arg(row))->click();
        QVERIFY(script.done());
        auto* value = qobject_cast<QLineEdit*>(edit->valueWidget(row));
        QCOMPARE(value->text(), QString("16711680"));
        QVERIFY(value->styleSheet().contains("#0000ff"));
        // the swatch beside the number follows it
        QVERIFY(edit->findChild<QWidget*>(QString("Swatch%1").arg(row))->styleSheet().contains("#0000ff"));
        QCOMPARE(w.session().settings.FrameColor, std::string("16711680"));
        QVERIFY(test::Trigger(&w, "Exit"));
        QVERIFY(app.at(1, 0).AttributeText.find("[Frame Color=16711680]") != std::string::npos);
    }

    void theEntryPreviewOfAConditionShowsItsFollowup()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(1, 1, "Condition With Comment");
        app.put(1, 2, "Followup With Comment");
        EditPage* edit = OpenEdit(w, 1, 1);
        test::SaveScreenshot(&w, "edit_page_condition");
        QVERIFY(test::Trigger(&w, "Preview"));
        QVERIFY(edit->browser() && edit->browser()->isVisible());
        QVERIFY(WaitLoaded(edit->browser()));
        QFile file(app.data + "/Preview.htm");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(file.readAll());
        QVERIFY(html.contains("Do you want to schedule a Karaoke Show?"));
        QVERIFY(html.contains("If yes, then provide the date and time of the Show"));
        QTest::qWait(300);
        test::SaveScreenshot(&w, "entry_preview_condition");
        QVERIFY(test::Trigger(&w, "ExitPreview"));
        QVERIFY(!edit->browser()->isVisible());
        QVERIFY(test::Trigger(&w, "Exit"));
        QCOMPARE(w.currentView(), tq::View::Page1);
    }

    void aFormBuildEndsOnTheFinalPageAndTheCodeGoesToTheClipboard()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        app.useWebFolder();
        QVERIFY(test::Trigger(&w, "CreateFormOnly"));
        QCOMPARE(w.currentView(), tq::View::FinalPage);
        FinalPage* page = w.finalPage();
        QCOMPARE(page->findChild<QLabel*>("lblTitle")->text(),
                 QString("INSTRUCTIONS ON GETTING YOUR FORM ON THE INTERNET "));
        QCOMPARE(page->findChild<QPushButton*>("CopyCode")->text(), QString("Copy FORM data to the clipboard"));
        QCOMPARE(page->findChild<QLabel*>("lblUpload")->text(),
                 QString("UPLOAD THE FOLLOWING FILE TO YOUR WEB SERVER"));
        QVERIFY(page->instructionBox()->toPlainText().contains("2. On the bottom left screen select Copy FORM data"));
        QVERIFY(page->codeBox()->toPlainText().contains("Enter your full name"));
        test::SaveScreenshot(&w, "final_page_form");
        test::DialogScript script;
        script.press(QMessageBox::Ok);
        page->findChild<QPushButton*>("CopyCode")->click();
        QVERIFY(script.done());
        QVERIFY(
            script.seen[0].startsWith("HTML CODE COPIED TO THE CLIPBOARD: The output HTML file code has been saved"));
        QFile html(QString::fromStdString(w.session().build.htmlPath));
        QVERIFY(html.open(QIODevice::ReadOnly));
        QCOMPARE(QApplication::clipboard()->text(), QString::fromUtf8(html.readAll()));
        QVERIFY(test::Trigger(&w, "EditMenu"));
        QCOMPARE(w.currentView(), tq::View::Page1);
    }

    void aPageChosenWhileThePreviewPaintsStaysInSight()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        app.put(1, 0, "Setup");
        app.put(1, 1, "Name");
        app.useWebFolder();
        test::DialogScript script;
        w.showView(tq::View::Page2);
        QVERIFY(test::Trigger(&w, "CreateFormHTMLCode"));
        PreviewWindow* preview = w.previewWindow();
        QVERIFY(preview->painting());
        w.showView(tq::View::StartPage);
        QTRY_VERIFY_WITH_TIMEOUT(!preview->painting(), 5000);
        QTest::qWait(50);
        QCOMPARE(w.currentView(), tq::View::StartPage);
        QVERIFY(!preview->browser()->isEnabled());
    }

    void aSurveyWholePageIsPreviewedAndExitGoesBackToWhereTheBuildStarted()
    {
        test::StartedWindow app;
        MainWindow& w = *app.w;
        auto& s = w.session();
        s.store.state.ProjectMode = tq::model::Mode::Survey;
        tq::model::BuildCatalogue(s.catalogue, s.settings, s.store.state);
        app.put(1, 0, "Setup");
        app.put(1, 1, "Name");
        app.useWebFolder();
        test::DialogScript script;
        w.showView(tq::View::Page2);
        QWebEnginePage* kept = nullptr;
        for (int round = 0; round < 2; ++round) {
            const tq::View before = w.currentView();
            QVERIFY(test::Trigger(&w, "CreateFormHTMLCode"));
            // the page that was in sight stays until the new page has painted
            PreviewWindow* preview = w.previewWindow();
            QVERIFY(preview->painting());
            QCOMPARE(w.currentView(), before);
            QVERIFY(!preview->browser()->isEnabled());
            QTRY_COMPARE_WITH_TIMEOUT(w.currentView(), tq::View::Preview, 5000);
            QVERIFY(!preview->painting());
            QVERIFY(preview->browser()->url().isLocalFile());
            // the browser fills the window below its menu bar, over the pages
            QVERIFY(preview->browser()->isEnabled());
            QCOMPARE(preview->browser()->mapTo(&w, QPoint(0, 0)).x(), preview->mapTo(&w, QPoint(0, 0)).x());
            QCOMPARE(preview->browser()->width(), preview->width());
            // one page serves every preview
            if (round == 0)
                kept = preview->browser()->page();
            QCOMPARE(preview->browser()->page(), kept);
            if (round == 0) {
                QTest::qWait(300);
                test::SaveScreenshot(&w, "whole_page_preview");
            }
            QVERIFY(test::Trigger(&w, "Exit"));
            // out of sight, the browser takes neither keys nor clicks
            QVERIFY(!preview->browser()->isEnabled());
            if (round == 0) {
                // started on a create page: back on Page 1, its first Input Type selected
                QCOMPARE(w.currentView(), tq::View::Page1);
                QCOMPARE(w.createPage(1)->pickList()->currentRow(), 0);
                QVERIFY(w.createPage(1)->pickList()->currentItem()->isSelected());
                // the second build, from the final page, replaces the files after its two questions
                w.showView(tq::View::FinalPage);
                script.press(QMessageBox::No).press(QMessageBox::Yes);
            } else {
                QCOMPARE(w.currentView(), tq::View::FinalPage);
            }
        }
        QVERIFY2(script.done(), qPrintable(script.seen.join(" | ")));
        FinalPage* page = w.finalPage();
        QCOMPARE(page->findChild<QLabel*>("lblTitle")->text(),
                 QString("INSTRUCTIONS ON GETTING YOUR SURVEY ON THE INTERNET "));
        QCOMPARE(page->findChild<QPushButton*>("CopyCode")->text(), QString("Copy SURVEY data to the clipboard"));
        QCOMPARE(page->findChild<QLabel*>("lblUpload")->text(),
                 QString("UPLOAD THE FOLLOWING FILES TO YOUR WEB SERVER"));
        QVERIFY(page->codeBox()->toPlainText().startsWith("<html>"));
        test::SaveScreenshot(&w, "final_page_survey");
    }
};

QTEST_MAIN(EditPageTest)
#include "gui_edit_page_test.moc"
