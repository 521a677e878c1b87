// SPDX-License-Identifier: GPL-3.0-or-later
#include "cmd_serve.h"
#include "commands.h"
#include "compose/build_driver.h"
#include "console_port.h"
#include "model/catalogue.h"
#include "model/new_project.h"
#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"
#include "shell/open_project.h"
#include "shell/publish_check.h"
#include "store/project_file.h"
#include "store/setup_store.h"
#include "store/text_file.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>

namespace tq::cli {

namespace {

int Usage(std::ostream& err, const std::string& why)
{
    err << "tarnquill-cli: " << why << "\n"
        << "usage: tarnquill-cli build FILE [--mode form|survey] [--whole-page] [--data-folder DIR] [--replace] "
           "[--web-folder DIR]\n";
    return 2;
}

// The mode word of the command line, or empty when it is neither.
std::string ModeWord(const std::string& word)
{
    const std::string upper = model::ToUpper(word);
    return upper == "FORM" || upper == "SURVEY" ? upper : std::string();
}

std::optional<BuildOptions> ParseBuild(const std::vector<std::string>& args, std::ostream& err)
{
    BuildOptions o;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (a == "--whole-page") {
            o.wholePage = true;
        } else if (a == "--replace") {
            o.replace = true;
        } else if (a == "--mode" || a == "--data-folder" || a == "--web-folder") {
            if (!hasValue) {
                Usage(err, a + " needs a value");
                return std::nullopt;
            }
            const std::string& v = args[++i];
            if (a == "--mode") {
                o.mode = ModeWord(v);
                if (o.mode.empty()) {
                    Usage(err, "--mode is form or survey, not '" + v + "'");
                    return std::nullopt;
                }
            } else if (a == "--data-folder") {
                o.dataFolder = v;
            } else {
                o.webFolder = v;
            }
        } else if (!a.empty() && a[0] == '-') {
            Usage(err, "unknown option '" + a + "'");
            return std::nullopt;
        } else if (o.file.empty()) {
            o.file = a;
        } else {
            Usage(err, "more than one FILE");
            return std::nullopt;
        }
    }
    if (o.file.empty()) {
        Usage(err, "build needs a FILE");
        return std::nullopt;
    }
    return o;
}

} // namespace

model::Mode ModeOfFile(const std::string& path)
{
    return model::ToUpper(std::filesystem::path(path).extension().string()) == ".SRV" ? model::Mode::Survey
                                                                                      : model::Mode::Form;
}

// the folder named by "\Tarnquill.stt" in the fixed folder of this machine
std::optional<std::string> DefaultDataFolder()
{
    const std::string fixed = platform::FixedFolder();
    if (fixed.empty())
        return std::nullopt;
    auto folder = store::ReadStt(fixed);
    if (!folder || folder->empty())
        return std::nullopt;
    return folder;
}

int SetDataFolder(Session& s, const std::optional<std::string>& given, std::ostream& err)
{
    if (given) {
        s.DataFolder = *given;
    } else if (auto folder = DefaultDataFolder()) {
        s.DataFolder = *folder;
    } else {
        err << "tarnquill-cli: no data folder: Tarnquill.stt names none; pass --data-folder DIR\n";
        return 2;
    }
    std::error_code ec;
    if (!std::filesystem::is_directory(s.DataFolder, ec)) {
        err << "tarnquill-cli: the data folder " << s.DataFolder << " does not exist\n";
        return 2;
    }
    return 0;
}

bool OpenProjectForCommand(Session& s, UiPort& port, const std::string& file, std::ostream& err)
{
    shell::OpenHooks hooks;
    hooks.clearPrompt = [](Session&, UiPort&) { return 0; };
    // the mode of the command line stands, whatever the file's extension says
    hooks.switchMode = [](Session&, UiPort&, model::Mode, int) {};
    hooks.remember = [](Session&, UiPort&) {};
    if (shell::OpenProjectFile(s, port, file, hooks) == shell::OpenResult::Opened)
        return true;
    err << "tarnquill-cli: cannot read " << file << "\n";
    return false;
}

int BuildProject(Session& s, const BuildOptions& o, ConsolePort& port, std::ostream& err)
{
    s.store.state.ProjectMode = o.mode.empty() ? ModeOfFile(o.file) : model::ModeOf(o.mode);
    if (!OpenProjectForCommand(s, port, o.file, err))
        return 1;

    if (o.webFolder) {
        auto& setupText = s.store.pages[0][0].AttributeText;
        bool found = false;
        setupText = PointProjectAt(setupText, *o.webFolder, found);
        if (!found) {
            err << "tarnquill-cli: the SetupEntry of " << o.file << " has no [DRIVE FOLDER PATH= to replace\n";
            return 1;
        }
    }

    port.replace = o.replace;
    if (o.wholePage)
        compose::CreateFormHTMLCode(s, port);
    else
        compose::CreateFormOnly(s, port);
    const auto& b = s.build;
    return b.buildError != 0 || b.setupHold || b.cancelled || b.endProgram ? 1 : 0;
}

int CmdNew(const std::vector<std::string>& args, std::ostream& out, std::ostream& err)
{
    std::string mode;
    std::string file;
    bool replace = false;
    bool usage = false;
    for (const auto& a : args) {
        if (a == "--replace")
            replace = true;
        else if (mode.empty() && ModeWord(a) != "")
            mode = ModeWord(a);
        else if (!mode.empty() && file.empty() && !a.empty() && a[0] != '-')
            file = a;
        else
            usage = true;
    }
    if (usage || mode.empty() || file.empty()) {
        err << "usage: tarnquill-cli new form|survey FILE [--replace]\n";
        return 2;
    }

    auto s = std::make_unique<Session>();
    ConsolePort port(err);
    port.replace = replace;
    if (store::FileReadable(file) && port.ask("File " + file + "  already exists. Do you want to replace it?",
                                              "FILE EXIST", Buttons::YesNo, Icon::Question, 2) != Answer::Yes)
        return 1;

    // Create Form / Create Survey on an empty store: nothing to clear, so no question
    model::EditContext c{s->store, s->settings, s->catalogue, port};
    model::InitCatalogueAtStartup(s->store, s->settings, s->catalogue);
    if (!model::CreateNewProject(c, model::ModeHooks{}, model::ModeOf(mode), 2)) {
        err << "tarnquill-cli: no new project was made\n";
        return 1;
    }
    if (!store::WriteFileReplacing(file, store::FormatProjectFile(store::WriteEntries(s->store)))) {
        err << "tarnquill-cli: cannot write " << file << "\n";
        return 1;
    }
    out << file << "\n";
    return 0;
}

int CmdBuild(const std::vector<std::string>& args, std::ostream& out, std::ostream& err)
{
    const auto options = ParseBuild(args, err);
    if (!options)
        return 2;
    const BuildOptions& o = *options;

    auto s = std::make_unique<Session>();
    if (const int code = SetDataFolder(*s, o.dataFolder, err); code != 0)
        return code;
    ConsolePort port(err);
    if (const int code = BuildProject(*s, o, port, err); code != 0)
        return code;

    const auto& b = s->build;
    out << b.htmlPath << "\n" << b.phpPath << "\n";
    // a script that PHP cannot parse would fail on the server: say so, but the build stands
    const auto check = shell::CheckPublishedScript(b, port);
    if (!check.warning.empty())
        err << check.warning << "\n";
    return 0;
}

} // namespace tq::cli
