// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/project_questions.h"

#include "compose/build_driver.h"
#include "model/text_ops.h"
#include "results/result_body.h"
#include "session.h"
#include "shell/local_test.h"
#include "store/text_file.h"

#include <algorithm>

namespace tq::results {

namespace {

// Keeps the first message of the build; every question is answered No.
struct BuildOnlyPort : UiPort
{
    std::string first;
    void message(std::string_view text, std::string_view title, Icon) override
    {
        if (first.empty())
            first = std::string(title) + ": " + std::string(text);
    }
    Answer ask(std::string_view text, std::string_view title, Buttons, Icon, int) override
    {
        message(text, title, Icon::Question);
        return Answer::No;
    }
    std::optional<std::string> inputBox(std::string_view, std::string_view, std::string_view) override { return {}; }
    std::optional<std::string> openFileDialog(const FileDialogOptions&) override { return {}; }
    std::optional<std::string> saveFileDialog(const FileDialogOptions&) override { return {}; }
    std::optional<std::string> browseForFolder(std::string_view, std::string_view) override { return {}; }
    std::optional<long> chooseColor(long, std::string_view) override { return {}; }
};

std::map<std::string, std::string> TagAttributes(std::string_view tag)
{
    std::map<std::string, std::string> attrs;
    size_t i = 0;
    while (i < tag.size()) {
        while (i < tag.size() && (tag[i] == ' ' || tag[i] == '\t' || tag[i] == '\r' || tag[i] == '\n' || tag[i] == '/'))
            ++i;
        const size_t nameFrom = i;
        while (i < tag.size() && tag[i] != '=' && tag[i] != ' ' && tag[i] != '\t' && tag[i] != '\r' && tag[i] != '\n')
            ++i;
        std::string name = model::ToLower(tag.substr(nameFrom, i - nameFrom));
        if (i >= tag.size() || tag[i] != '=') {
            if (!name.empty())
                attrs.emplace(name, "");
            continue;
        }
        ++i;
        std::string value;
        if (i < tag.size() && (tag[i] == '"' || tag[i] == '\'')) {
            const char quote = tag[i++];
            const size_t close = tag.find(quote, i);
            const size_t to = close == std::string_view::npos ? tag.size() : close;
            value = std::string(tag.substr(i, to - i));
            i = to + 1;
        } else {
            const size_t from = i;
            while (i < tag.size() && tag[i] != ' ' && tag[i] != '\t' && tag[i] != '\r' && tag[i] != '\n')
                ++i;
            value = std::string(tag.substr(from, i - from));
        }
        attrs.emplace(name, UnescapeTyped(value));
    }
    return attrs;
}

std::string FieldOf(std::string name)
{
    if (name.size() > 2 && name.compare(name.size() - 2, 2, "[]") == 0)
        name.resize(name.size() - 2);
    return name;
}

void AddChoice(std::vector<std::string>& list, const std::string& value)
{
    if (std::find(list.begin(), list.end(), value) == list.end())
        list.push_back(value);
}

} // namespace

std::map<std::string, std::vector<std::string>> ChoicesOfPage(std::string_view html)
{
    std::map<std::string, std::vector<std::string>> choices;
    std::string select; // the select being read
    for (size_t at = html.find('<'); at != std::string_view::npos; at = html.find('<', at + 1)) {
        const size_t close = html.find('>', at);
        if (close == std::string_view::npos)
            break;
        const std::string_view tag = html.substr(at + 1, close - at - 1);
        size_t nameEnd = 0;
        while (nameEnd < tag.size() && tag[nameEnd] != ' ' && tag[nameEnd] != '\t' && tag[nameEnd] != '\r' &&
               tag[nameEnd] != '\n')
            ++nameEnd;
        const std::string element = model::ToLower(tag.substr(0, nameEnd));
        if (element == "/select") {
            select.clear();
            continue;
        }
        if (element != "input" && element != "select" && element != "option")
            continue;
        auto attrs = TagAttributes(tag.substr(nameEnd));
        if (element == "select") {
            select = FieldOf(attrs["name"]);
            choices[select];
        } else if (element == "option" && !select.empty()) {
            std::string value;
            if (const auto v = attrs.find("value"); v != attrs.end()) {
                value = v->second;
            } else {
                const size_t textEnd = html.find('<', close + 1);
                const size_t to = textEnd == std::string_view::npos ? html.size() : textEnd;
                value = UnescapeTyped(model::Trim(html.substr(close + 1, to - close - 1), " \t\r\n"));
            }
            AddChoice(choices[select], value);
        } else if (element == "input") {
            const std::string type = model::ToLower(attrs["type"]);
            if ((type == "radio" || type == "checkbox") && !attrs["name"].empty())
                AddChoice(choices[FieldOf(attrs["name"])], attrs["value"]);
        }
    }
    return choices;
}

bool ReadProjectQuestions(Session& s, const std::string& scratchFolder, ProjectQuestions& out, std::string& error)
{
    auto& setupText = s.store.pages[0][0].AttributeText;
    const std::string kept = setupText;
    bool found = false;
    setupText = shell::PointProjectAt(setupText, scratchFolder, found);
    BuildOnlyPort port;
    if (found)
        compose::CreateFormHTMLCode(s, port);
    setupText = kept;
    const auto& b = s.build;
    if (!found || b.buildError != 0 || b.setupHold || b.cancelled || b.endProgram) {
        error = found ? (port.first.empty() ? "the project does not build" : port.first)
                      : "the project has no [DRIVE FOLDER PATH=";
        return false;
    }
    const auto html = store::ReadWholeFile(b.htmlPath);
    const auto offered = ChoicesOfPage(html ? *html : std::string());

    out = ProjectQuestions{};
    out.from = b.setupValues.FROM;
    for (int i = 1; i + 1 <= b.messageLineCount; i += 2) {
        const std::string& label = b.messageLines[static_cast<size_t>(i)];
        const std::string& w = b.messageLines[static_cast<size_t>(i + 1)];
        std::vector<std::string> lines = CaptionLines(label);
        Question q;
        const std::vector<std::string_view> views(lines.begin(), lines.end());
        q.title = CaptionTitle(views, 0, views.size());
        q.fromProject = true;
        if (!w.empty() && w[0] != '-' && !model::Trim(w).empty()) {
            q.key = w;
            if (const auto it = offered.find(w); it != offered.end() && !it->second.empty()) {
                q.hasChoices = true;
                q.choices = it->second;
            }
        }
        out.captions.push_back(std::move(lines));
        out.questions.push_back(std::move(q));
    }
    return true;
}

} // namespace tq::results
