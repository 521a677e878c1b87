// SPDX-License-Identifier: GPL-3.0-or-later
#include "menus.h"

#include <QMenu>
#include <QMenuBar>

namespace tq::gui {

QAction* AddCommand(QMenu* menu, const QString& name, const QString& caption, const CommandHandler& handler)
{
    QAction* a = menu->addAction(caption);
    a->setObjectName(name);
    QObject::connect(a, &QAction::triggered, menu, [handler, name] { handler(name); });
    return a;
}

static QMenu* AddMenu(QMenuBar* bar, const QString& name, const QString& caption)
{
    QMenu* m = bar->addMenu(caption);
    m->setObjectName(name);
    m->menuAction()->setObjectName(name + "Menu");
    return m;
}

static QMenu* AddSubMenu(QMenu* parent, const QString& name, const QString& caption)
{
    QMenu* m = parent->addMenu(caption);
    m->setObjectName(name);
    m->menuAction()->setObjectName(name + "Menu");
    return m;
}

// A menu whose title is itself the command (FTP, Photo-Show, Exit): a menu
// bar entry that runs at once when clicked.
static QAction* AddBarCommand(QMenuBar* bar, const QString& name, const QString& caption, const CommandHandler& handler)
{
    QAction* a = bar->addAction(caption);
    a->setObjectName(name);
    QObject::connect(a, &QAction::triggered, bar, [handler, name] { handler(name); });
    return a;
}

static void AddRecentMenus(QMenu* file, const CommandHandler& h)
{
    QMenu* recent = AddSubMenu(file, "Recent", "&Recent");
    QMenu* form = AddSubMenu(recent, "FormHistory", "Form");
    for (int i = 1; i <= 15; ++i)
        AddCommand(form, QString("File%1").arg(i), "Not Assigned", h);
    form->addSeparator();
    AddCommand(form, "EditFormHistory", "Edit History", h);
    AddCommand(form, "RefreshFormHistory", "Refresh History", h);
    QMenu* sv = AddSubMenu(recent, "SurveyHistory", "Survey");
    for (int i = 1; i <= 15; ++i)
        AddCommand(sv, QString("FileHistory%1").arg(i), "Not Assigned", h);
    sv->addSeparator();
    AddCommand(sv, "EditSurveyHistory", "Edit History", h);
    AddCommand(sv, "RefreshSurveyHistory", "Refresh History", h);
}

static void AddSiteMenus(QMenuBar* bar, const CommandHandler& h)
{
    QMenu* live = AddMenu(bar, "PreviewLive", "&View-Website");
    for (int i = 1; i <= 15; ++i)
        AddCommand(live, QString("LivePreview%1").arg(i), "Not Assigned", h);
    QMenu* web = AddMenu(bar, "FrontPage", "&Web-Editor");
    for (int i = 1; i <= 15; ++i)
        AddCommand(web, QString("Web%1").arg(i), "Not Assigned", h);
    AddBarCommand(bar, "FTP", "FTP", h);
}

static void AddSetupMenu(QMenuBar* bar, const CommandHandler& h, bool withRows)
{
    QMenu* setup = AddMenu(bar, "Setup", "S&etup");
    AddCommand(setup, "SetupPage", "Setup Page", h);
    if (withRows) {
        // the commands that change one attribute on every row
        AddCommand(setup, "ShadeWidthAll", "Shade Width of All Questions", h);
        AddCommand(setup, "SetAlignmentOnAll", "Alignment of All Input Types", h);
        AddCommand(setup, "SetTableAlignmentOnAll", "Alignment of All Tables", h);
        AddCommand(setup, "TableForeColor", "Table Foreground Color", h);
        AddCommand(setup, "TableBackColor", "Table Background Color", h);
    }
    QMenu* folder = AddSubMenu(setup, "TarnquillFolder", "Tarnquill Folder");
    AddCommand(folder, "SelectTQL", "Change", h);
    AddCommand(folder, "ViewTarnquillFolder", "View", h);
}

static void AddBuildMenu(QMenuBar* bar, const CommandHandler& h)
{
    QMenu* build = AddMenu(bar, "createhtmphp", "&Build HTM-PHP");
    AddCommand(build, "CreateFormOnly", "Create Form Only", h);
    AddCommand(build, "CreateFormHTMLCode", "Create Form with HTML Code", h);
    build->addSeparator();
    AddCommand(build, "TestLocally", "Test Locally", h);
    AddCommand(build, "Publish", "Publish...", h);
    AddCommand(build, "UploadTargets", "Upload Targets...", h);
    AddCommand(build, "Results", "Results...", h);
}

QMenuBar* BuildMenuBar(MenuKind kind, QWidget* parent, const CommandHandler& h)
{
    auto* bar = new QMenuBar(parent);
    bar->setObjectName("MenuBar");
    bar->setNativeMenuBar(false);

    QMenu* file = AddMenu(bar, "File", "&File");
    QMenu* form = AddSubMenu(file, "FormFile", "Form");
    AddCommand(form, "CreateNewForm", "Create Form", h);
    AddCommand(form, "openform", "Open Form", h);
    AddCommand(form, "SaveForm", "Save Form", h);
    QMenu* survey = AddSubMenu(file, "Survey", "Survey");
    AddCommand(survey, "CreateSurvey", "Create Survey", h);
    AddCommand(survey, "OpenSurvey", "Open Survey", h);
    AddCommand(survey, "SaveSurvey", "Save Survey", h);
    AddRecentMenus(file, h);
    file->addSeparator();
    AddCommand(file, "SaveDefaults", "Save as Default", h);
    AddCommand(file, "RestoreDefaults", "Restore Defaults", h);
    file->addSeparator();
    AddCommand(file, "Exit", "Exit", h);

    if (kind == MenuKind::StartPage) {
        AddBarCommand(bar, "PhotoShow", "Ph&oto-Show", h);
        AddBarCommand(bar, "ViewFormSurvey", "&Edit", h);
    } else {
        AddCommand(file, "PhotoShow", "Photo-Show", h);
    }
    QMenu* view = AddMenu(bar, "View", "&Switch");
    AddCommand(view, "FormList", "Form", h);
    AddCommand(view, "SurveyList", "Survey", h);
    if (kind == MenuKind::CreatePage1 || kind == MenuKind::CreatePageN) {
        if (kind == MenuKind::CreatePageN)
            AddBarCommand(bar, "PreviousPage", "&Previous", h);
        AddBarCommand(bar, "NextPage", "&Next", h);
    }
    AddBuildMenu(bar, h);
    AddSiteMenus(bar, h);
    if (kind != MenuKind::StartPage)
        AddBarCommand(bar, "Main", "&Main", h);
    AddSetupMenu(bar, h, kind != MenuKind::StartPage);
    AddBarCommand(bar, "Exit1", "E&xit", h);

    QMenu* help = AddMenu(bar, "Help", "&Help");
    AddCommand(help, "CreatingFormSurvey", "Creating a Form", h);
    if (kind == MenuKind::CreatePage1 || kind == MenuKind::CreatePageN)
        AddCommand(help, "DragDropHelp", "Inserting Input to the Form", h);
    if (kind == MenuKind::StartPage || kind == MenuKind::FinalPage) {
        AddCommand(help, "HomePage", "Home Page", h);
        AddCommand(help, "features", "Features", h);
        AddCommand(help, "Tutorial", "Tutorial", h);
        AddCommand(help, "Demo", "Demo", h);
        AddCommand(help, "SampleForms", "Sample Forms", h);
        AddCommand(help, "contact", "Contact", h);
        AddCommand(help, "download", "Download", h);
        AddCommand(help, "rev", "Revision History", h);
        help->addSeparator();
        AddCommand(help, "CheckForUpdate", "Check for Update", h);
        AddCommand(help, "About", "About Tarnquill", h);
    }
    return bar;
}

} // namespace tq::gui
