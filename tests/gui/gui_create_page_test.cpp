// SPDX-License-Identifier: GPL-3.0-or-later
#include "create_page.h"
#include "entry_table_model.h"
#include "gui_test_support.h"
#include "main_window.h"
#include "pick_list.h"
#include "start_page.h"

#include <QAction>
#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTemporaryDir>
#include <QWebEngineView>
#include <QtTest>

using namespace tq::gui;

namespace {

using Started = test::StartedWindow;

void SelectType(CreatePage* page, const QString& name)
{
    const auto items = page->pickList()->findItems(name, Qt::MatchExactly);
    QVERIFY2(!items.isEmpty(), qPrintable(name));
    page->pickList()->setCurrentItem(items.first());
}

void CreateNew(MainWindow& w, const char* command)
{
    // a fresh start holds the SetupEntry only, so nothing is asked
    test::DialogScript script;
    QVERIFY(test::Trigger(&w, command));
    QVERIFY2(script.seen.isEmpty(), qPrintable(script.seen.join(" | ")));
}

// Presses OK on a message box and keeps its icon.
std::function<void(QWidget*)> PressOk(QMessageBox::Icon& icon)
{
    return [&icon](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        icon = box ? box->icon() : QMessageBox::NoIcon;
        if (box)
            box->button(QMessageBox::Ok)->click();
    };
}

// A picture of the whole screen, open menus included.
void SaveScreen(const QString& name)
{
    QDir().mkpath(TQ_ARTIFACT_DIR);
    QGuiApplication::primaryScreen()->grabWindow(0).save(QString(TQ_ARTIFACT_DIR) + "/" + name + ".png");
}

void DropRow(CreatePage* page, int source, int target)
{
    auto* model = page->model();
    std::unique_ptr<QMimeData> mime(model->mimeData({model->index(source, EntryTableModel::ColType)}));
    model->dropMimeData(mime.get(), Qt::CopyAction, -1, -1, model->index(target, EntryTableModel::ColType));
}

} // namespace

class CreatePageTest : public QObject
{
    Q_OBJECT
  private slots:
    void newFormAndSurveyFillPageOne()
    {
        Started app;
        MainWindow& w = *app.w;
        CreateNew(w, "CreateNewForm");
        QCOMPARE(w.currentView(), tq::View::Page1);
        QCOMPARE(app.name(1, 0), QString("Setup"));
        QCOMPARE(app.name(1, 3), QString("Name"));
        QCOMPARE(app.name(1, 16), QString("Security Code"));
        QVERIFY(app.name(1, 5).isEmpty());
        auto* page = w.createPage(1);
        QCOMPARE(page->findChild<QLabel*>("lblPageHeading")->text(), QString("Page 1 of 4     Create: Form"));
        // the SetupEntry has no Clear, an empty row no Edit
        QVERIFY(!page->findChild<QPushButton*>("Clear0"));
        QVERIFY(!page->findChild<QPushButton*>("Edit5")->isEnabled());
        test::SaveScreenshot(&w, "page1_new_form");
        {
            test::DialogScript script;
            script.press(QMessageBox::Yes); // clear the entries of the form
            QVERIFY(test::Trigger(&w, "CreateSurvey"));
        }
        QVERIFY(w.session().store.state.ProjectMode == tq::model::Mode::Survey);
        // from a Page the mode switch of a new project shows the start page
        QCOMPARE(w.currentView(), tq::View::StartPage);
        QVERIFY(test::Trigger(&w, "ViewFormSurvey"));
        QCOMPARE(app.name(1, 2), QString("Survey Intro"));
        QCOMPARE(page->findChild<QLabel*>("lblPageHeading")->text(), QString("Page 1 of 4     Create: Survey"));
        QCOMPARE(w.startPage()->findChild<QLabel*>("lblActive")->text(), QString("SURVEY IS ACTIVE"));
        test::SaveScreenshot(&w, "page1_new_survey");
    }

    void addByEnterAndDoubleClickAndAConditionMovesToPageTwo()
    {
        Started app;
        MainWindow& w = *app.w;
        CreateNew(w, "CreateNewForm");
        auto* page = w.createPage(1);
        SelectType(page, "Phone Number");
        QTest::keyClick(page->pickList(), Qt::Key_Return);
        QCOMPARE(app.name(1, 5), QString("Phone Number"));
        QVERIFY(page->findChild<QPushButton*>("Edit5")->isEnabled());
        SelectType(page, "Picture");
        const QPoint at = page->pickList()->visualItemRect(page->pickList()->currentItem()).center();
        // the view takes a double click on the item that the press before it hit
        QTest::mousePress(page->pickList()->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(page->pickList()->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(app.name(1, 6), QString("Picture"));
        // fill the Page up to row 23: a Condition no longer fits on row 24
        for (int row = 7; row < 24; ++row)
            if (app.name(1, row).isEmpty()) {
                SelectType(page, "Blank Line");
                QTest::keyClick(page->pickList(), Qt::Key_Return);
            }
        QVERIFY(app.name(1, 24).isEmpty());
        SelectType(page, "Condition With Comment");
        QTest::keyClick(page->pickList(), Qt::Key_Return);
        QVERIFY(app.name(1, 24).isEmpty());
        QCOMPARE(app.names(2, 0, 1), (QStringList{"Condition With Comment", "Followup With Comment"}));
        QCOMPARE(w.currentView(), tq::View::Page2);
        // either half of a pair clears both
        w.createPage(2)->findChild<QPushButton*>("Clear1")->click();
        QCOMPARE(app.names(2, 0, 1), (QStringList{"", ""}));
        // Enter with nothing selected
        page->pickList()->clearSelection();
        test::DialogScript script;
        script.press(QMessageBox::Ok);
        QTest::keyClick(page->pickList(), Qt::Key_Return);
        QCOMPARE(script.seen.size(), 1);
        QVERIFY2(script.seen[0].endsWith("nothing selected"), qPrintable(script.seen[0]));
    }

    void dragARowOntoAnotherAndOrderRenumbers()
    {
        Started app;
        MainWindow& w = *app.w;
        CreateNew(w, "CreateNewForm");
        auto* page = w.createPage(1);
        // Email (row 4) dropped on Subject (row 2): copied there, the rest pushed down
        DropRow(page, 4, 2);
        QCOMPARE(app.names(1, 2, 5), (QStringList{"Email", "Subject", "Name", "Email"}));
        // Setup cannot be copied
        {
            test::DialogScript script;
            script.press(QMessageBox::Ok);
            DropRow(page, 0, 6);
            QCOMPARE(script.seen.size(), 1);
            QVERIFY(script.seen[0].startsWith("CANNOT COPY SETUP"));
        }
        // Security Code, pushed down to row 17, goes first behind the Setup row
        auto* model = page->model();
        QCOMPARE(app.name(1, 17), QString("Security Code"));
        QVERIFY(model->setData(model->index(17, EntryTableModel::ColNumber), "1", Qt::EditRole));
        // No changes nothing: not the rows, not the pick list's selection
        PickList* pick = page->pickList();
        pick->setCurrentRow(5);
        {
            test::DialogScript script;
            script.press(QMessageBox::No);
            page->findChild<QPushButton*>("Order")->click();
            QCOMPARE(script.seen.size(), 1);
            QVERIFY(script.seen[0].startsWith("REORDER ENTRIES"));
        }
        QCOMPARE(app.name(1, 17), QString("Security Code"));
        QCOMPARE(pick->currentRow(), 5);
        {
            test::DialogScript script;
            script.press(QMessageBox::Yes).press(QMessageBox::Ok);
            page->findChild<QPushButton*>("Order")->click();
            QCOMPARE(script.seen.last(), QString("ORDER UPDATED: The Order has been updated"));
        }
        QCOMPARE(app.names(1, 1, 2), (QStringList{"Security Code", "Title 1 Single Line"}));
    }

    void saveClearAllOpenBringsTheRowsBack()
    {
        Started app;
        MainWindow& w = *app.w;
        CreateNew(w, "CreateNewForm");
        auto* page = w.createPage(1);
        auto names = [&app] {
            QStringList list;
            for (int row = 0; row < 25; ++row)
                if (!app.name(1, row).isEmpty())
                    list << app.name(1, row);
            return list;
        };
        const QStringList saved = names();
        QCOMPARE(saved.size(), 7);
        const QString file = app.data + "/contact.fms";
        {
            test::DialogScript script;
            script.choose(file);
            QVERIFY(test::Trigger(&w, "SaveForm"));
            QVERIFY(script.done());
        }
        QVERIFY(QFile::exists(file));
        {
            test::DialogScript script;
            script.press(QMessageBox::Yes);
            page->findChild<QPushButton*>("ClearAll")->click();
        }
        QCOMPARE(app.name(1, 0), QString("Setup"));
        QVERIFY(app.name(1, 3).isEmpty());
        {
            test::DialogScript script;
            script.choose(file);
            QVERIFY(test::Trigger(&w, "openform"));
            QVERIFY2(script.done(), qPrintable(script.seen.join(" | ")));
        }
        // the file holds the used rows one after another: they come back in order
        QCOMPARE(names(), saved);
        QCOMPARE(app.name(1, 3), QString("Name"));
    }

    void spaceShowsAQuickPreviewAndEscLeavesTheRowsAlone()
    {
        Started app;
        MainWindow& w = *app.w;
        CreateNew(w, "CreateNewForm");
        auto* page = w.createPage(1);
        // nothing selected: nothing happens
        page->pickList()->clearSelection();
        QTest::keyClick(page->pickList(), Qt::Key_Space);
        QVERIFY(!page->previewVisible());
        SelectType(page, "Question YesNo Required");
        QTest::keyClick(page->pickList(), Qt::Key_Space);
        auto* web = page->findChild<QWebEngineView*>("QuickPreview");
        QVERIFY(web);
        QSignalSpy loaded(web, &QWebEngineView::loadFinished);
        QVERIFY(page->previewVisible());
        QVERIFY(QFile::exists(app.data + "/Preview.htm"));
        QVERIFY(app.name(1, 5).isEmpty());
        QVERIFY(!w.session().store.state.QuickPreviewActive);
        QVERIFY(loaded.wait(10000) || loaded.count() > 0);
        QTest::qWait(200);
        test::SaveScreenshot(&w, "page1_quick_preview");
        QTest::keyClick(page->pickList(), Qt::Key_Escape);
        QVERIFY(!page->previewVisible());
        QVERIFY(app.name(1, 5).isEmpty());
    }

    void thePageCommandsOfTheMenusAnswerAsWritten()
    {
        Started app;
        MainWindow& w = *app.w;
        CreateNew(w, "CreateSurvey"); // the tables belong to the survey
        QCOMPARE(w.currentView(), tq::View::Page1);
        // the alignments of all rows, as the texts hold them
        auto alignments = [&app] {
            QStringList found;
            for (int page = 1; page <= 4; ++page)
                for (int row = 0; row < 25; ++row) {
                    const QString text = QString::fromStdString(app.at(page, row).AttributeText);
                    for (qsizetype at = text.indexOf("[Align="); at >= 0; at = text.indexOf("[Align=", at + 1))
                        found << text.mid(at + 7, text.indexOf(']', at) - at - 7);
                }
            found.removeDuplicates();
            return found;
        };
        QVERIFY(!alignments().isEmpty());
        QVERIFY(test::Trigger(&w, "NextPage"));
        auto* page2 = w.createPage(2);
        // Page 2 has the Recent menus of Page 1, both lists
        for (const char* name : {"File15", "FileHistory15", "EditSurveyHistory", "RefreshFormHistory"})
            QVERIFY2(page2->findChild<QAction*>(name), name);

        QMessageBox::Icon icon = QMessageBox::NoIcon;
        {
            test::DialogScript script;
            script.type("middle").then(PressOk(icon)).type("Right");
            QVERIFY(test::Trigger(&w, "SetAlignmentOnAll"));
            QCOMPARE(script.seen,
                     (QStringList{"ALIGN: Enter left, right or center", "ERROR: Value must be left, right or center",
                                  "ALIGN: Enter left, right or center"}));
            QCOMPARE(icon, QMessageBox::Warning);
        }
        QCOMPARE(alignments(), QStringList{"right"});
        {
            test::DialogScript script;
            script.type("left").then(PressOk(icon));
            QVERIFY(test::Trigger(&w, "SetTableAlignmentOnAll"));
            QCOMPARE(script.seen.last(), QString("NO CHANGES MADE: None of the input types that have been added "
                                                 "contain a TABLE ALIGN\n\nTABLE ALIGN NOT FOUND"));
            QCOMPARE(icon, QMessageBox::Information);
        }
        // the new survey holds its two tables: their background changes, nothing else
        auto tableTexts = [&w] {
            QStringList texts;
            for (const auto& page : w.session().store.pages)
                for (const auto& e : page)
                    if (QString::fromStdString(e.InputTypeName).startsWith("Table"))
                        texts << QString::fromStdString(e.AttributeText);
            return texts;
        };
        QCOMPARE(tableTexts().size(), 2);
        {
            test::DialogScript script;
            script.then(PressOk(icon)).then([](QWidget* d) {
                if (auto* dialog = qobject_cast<QColorDialog*>(d))
                    dialog->setCurrentColor(QColor(0, 0, 255));
                static_cast<QDialog*>(d)->accept();
            });
            QVERIFY(test::Trigger(&w, "TableBackColor"));
            QCOMPARE(script.seen, (QStringList{"CHOOSE A FOREGROUND COLOR: Select the table Background color",
                                               "CHOOSE A FOREGROUND COLOR"}));
            QCOMPARE(icon, QMessageBox::Information);
        }
        for (const QString& text : tableTexts())
            QVERIFY2(text.contains("[Answer Back Color=16711680]"), qPrintable(text));
        // without a table the colour commands refuse
        for (auto& page : w.session().store.pages)
            for (auto& e : page)
                if (QString::fromStdString(e.InputTypeName).startsWith("Table"))
                    e = {};
        {
            test::DialogScript script;
            script.then(PressOk(icon));
            QVERIFY(test::Trigger(&w, "TableForeColor"));
            QCOMPARE(script.seen, QStringList{"No table has been added to the list: You must first add a table to the "
                                              "list before you can change the foreground and background colors\n\n"
                                              "Be sure to add a table to the list before continuing"});
            QCOMPARE(icon, QMessageBox::Warning);
        }
        {
            test::DialogScript script;
            script.then(PressOk(icon));
            QVERIFY(test::Trigger(&w, "DragDropHelp"));
            QCOMPARE(script.seen,
                     QStringList{"INSERTING INPUT TO THE FORM: To insert a Input Type in the current form, "
                                 "highlight the Input you want to add from the list on the left and then "
                                 "hold the left mouse button and drag it into the Input Type column that "
                                 "you want to inserted into"});
            QCOMPARE(icon, QMessageBox::Information);
        }

        // the Setup menu with the new entries, for review
        auto* setup = page2->findChild<QMenu*>("Setup");
        QVERIFY(setup);
        setup->popup(page2->mapToGlobal(QPoint(420, 30)));
        QTest::qWait(300);
        SaveScreen("page2_setup_menu");
        setup->hide();

        auto* background = page2->findChild<QPushButton*>("BackgroundPicture");
        QCOMPARE(background->toolTip(),
                 QString("Click here to add or remove a background picture to your Form or Survey"));
        background->click();
        QCOMPARE(w.currentView(), tq::View::EditPage);
        QCOMPARE(w.windowTitle(), QString("EDIT PAGE \u2014 *Untitled \u2014 Tarnquill"));
    }
};

QTEST_MAIN(CreatePageTest)
#include "gui_create_page_test.moc"
