// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands.h"
#include "console_port.h"
#include "port/platform.h"
#include "session.h"
#include "show/show_build.h"
#include "show/show_file.h"

#include <filesystem>
#include <ostream>

namespace tq::cli {

namespace {

/// The console port, with the template dialog answered by --template.
class ShowPort : public ConsolePort
{
  public:
    ShowPort(std::ostream& err, std::string templatePath) : ConsolePort(err), m_template(std::move(templatePath)) {}

    std::optional<std::string> openFileDialog(const FileDialogOptions&) override { return m_template; }

  private:
    std::string m_template;
};

} // namespace

int CmdShow(const std::vector<std::string>& args, std::ostream& out, std::ostream& err)
{
    std::string file;
    std::string templatePath;
    std::string dataFolder;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if ((a == "--template" || a == "--data-folder") && i + 1 < args.size()) {
            (a == "--template" ? templatePath : dataFolder) = args[++i];
        } else if (!a.empty() && a[0] != '-' && file.empty()) {
            file = a;
        } else {
            err << "tarnquill-cli: show: unexpected argument '" << a << "'\n";
            return 2;
        }
    }
    if (file.empty() || templatePath.empty()) {
        err << "usage: tarnquill-cli show FILE.shw --template PATH [--data-folder DIR]\n";
        return 2;
    }
    std::error_code ec;
    if (!std::filesystem::is_regular_file(file, ec)) {
        err << "tarnquill-cli: show: cannot read '" << file << "'\n";
        return 1;
    }

    Session session;
    session.DataFolder = dataFolder;
    ShowPort port(err, templatePath);
    if (!show::OpenShow(session, file, port)) {
        err << "tarnquill-cli: show: cannot read '" << file << "'\n";
        return 1;
    }
    const std::string programFolder = std::filesystem::path(templatePath).parent_path().string();
    if (!show::BuildShow(session, programFolder, port))
        return 1;
    const std::string folder = show::RemoveTrailingSeparator(session.photoShow.settings.ImageFolder);
    out << platform::JoinPath(folder, "\\photoshow.php") << '\n';
    out << platform::JoinPath(folder, "\\readmeshow.txt") << '\n';
    out << session.photoShow.OutputLine << '\n';
    return 0;
}

} // namespace tq::cli
