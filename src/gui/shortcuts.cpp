// SPDX-License-Identifier: GPL-3.0-or-later
#include "shortcuts.h"

#include "model/text_ops.h"

namespace tq::gui {

QList<KeyCommand> KeysOf(View view, model::Mode mode)
{
    const bool survey = mode == model::Mode::Survey;
    const bool page = view >= View::Page1 && view <= View::Page4;
    QList<KeyCommand> keys;
    if (view == View::EditPage) {
        keys = {{QKeySequence(Qt::Key_F1), "HelpPage"}, {QKeySequence(Qt::Key_F5), "Preview"}};
        return keys;
    }
    if (view == View::SetupPage || view == View::PhotoShowPage) {
        keys = {{QKeySequence(Qt::Key_F1), view == View::SetupPage ? "SetupHelp" : "PhotoShowHelp"}};
        return keys;
    }
    if (!page && view != View::StartPage && view != View::FinalPage)
        return keys;
    keys = {
        {QKeySequence(Qt::CTRL | Qt::Key_N), survey ? "CreateSurvey" : "CreateNewForm"},
        {QKeySequence(Qt::CTRL | Qt::Key_O), survey ? "OpenSurvey" : "openform"},
        {QKeySequence(Qt::CTRL | Qt::Key_S), survey ? "SaveSurvey" : "SaveForm"},
        {QKeySequence(Qt::CTRL | Qt::Key_B), "CreateFormOnly"},
        {QKeySequence(Qt::CTRL | Qt::Key_T), "TestLocally"},
        {QKeySequence(Qt::Key_F5), "CreateFormHTMLCode"},
        {QKeySequence(Qt::Key_F1), "CreatingFormSurvey"},
        {QKeySequence(Qt::CTRL | Qt::Key_Q), "Exit"},
    };
    if (page) {
        keys.append({QKeySequence(Qt::Key_PageUp), "PreviousPage"});
        keys.append({QKeySequence(Qt::Key_PageDown), "NextPage"});
    }
    return keys;
}

} // namespace tq::gui
