// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_cli.h"

#include "commands.h"

#include <ostream>

namespace tq::cli {

static const char* const kUsage = "usage:\n"
                                  "  tarnquill-cli new form|survey FILE [--replace]\n"
                                  "  tarnquill-cli build FILE [--mode form|survey] [--whole-page] "
                                  "[--data-folder DIR] [--replace] [--web-folder DIR]\n"
                                  "  tarnquill-cli show FILE.shw --template PATH [--data-folder DIR]\n"
                                  "  tarnquill-cli serve FILE [--port N]\n"
                                  "  tarnquill-cli results [PROJECT] --mail PATH... [--csv OUT] [--data-folder DIR] "
                                  "[--password-stdin]\n"
                                  "  tarnquill-cli site N --protocol ftp|ftps|sftp --host H [--port P] --user U "
                                  "[--key PATH] [--password-stdin] --remote-dir D --url URL [--trust] "
                                  "[--data-folder DIR]\n"
                                  "  tarnquill-cli publish FILE --site N [--all] [--dry-run] [--password-stdin] "
                                  "[--web-folder DIR] [--data-folder DIR]\n";

int RunCli(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err)
{
    if (args.empty() || args[0] == "--help" || args[0] == "-h") {
        (args.empty() ? err : out) << kUsage;
        return args.empty() ? 2 : 0;
    }
    std::vector<std::string> rest(args.begin() + 1, args.end());
    if (args[0] == "new")
        return CmdNew(rest, out, err);
    if (args[0] == "build")
        return CmdBuild(rest, out, err);
    if (args[0] == "show")
        return CmdShow(rest, out, err);
    if (args[0] == "results")
        return CmdResults(rest, in, out, err);
    if (args[0] == "serve")
        return CmdServe(rest, out, err);
    if (args[0] == "site")
        return CmdSite(rest, in, out, err);
    if (args[0] == "publish")
        return CmdPublish(rest, in, out, err);
    err << "tarnquill-cli: unknown command '" << args[0] << "'\n" << kUsage;
    return 2;
}

} // namespace tq::cli
