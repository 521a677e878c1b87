// SPDX-License-Identifier: GPL-3.0-or-later
// tarnquill-cli serve: builds the whole page into a temporary folder and serves
// it with PHP's built-in server on 127.0.0.1, keeping every mail the script
// sends and printing it, until Ctrl-C.
#include "cmd_serve.h"

#include "commands.h"
#include "model/text_ops.h"
#include "store/text_file.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <netinet/in.h>
#include <ostream>
#include <set>
#include <signal.h>
#include <sstream>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace tq::cli {

namespace {

volatile std::sig_atomic_t g_stop = 0;

void OnStopSignal(int)
{
    g_stop = 1;
}

/// The first executable `name` on PATH, or empty.
std::string FindProgram(const std::string& name)
{
    const char* path = std::getenv("PATH");
    std::stringstream dirs(path ? path : "");
    std::string dir;
    while (std::getline(dirs, dir, ':')) {
        if (dir.empty())
            continue;
        fs::path candidate = fs::path(dir) / name;
        if (::access(candidate.c_str(), X_OK) == 0 && fs::is_regular_file(candidate))
            return candidate.string();
    }
    return {};
}

/// A port on 127.0.0.1 that nothing listens on right now.
int FreePort()
{
    int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    if (fd < 0)
        return 0;
    sockaddr_in addr{};
    addr.sin_family = AF_INET;
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    addr.sin_port = 0;
    socklen_t len = sizeof addr;
    int port = 0;
    if (::bind(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) == 0 &&
        ::getsockname(fd, reinterpret_cast<sockaddr*>(&addr), &len) == 0)
        port = ntohs(addr.sin_port);
    ::close(fd);
    return port;
}

bool Accepts(int port)
{
    int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    if (fd < 0)
        return false;
    sockaddr_in addr{};
    addr.sin_family = AF_INET;
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    addr.sin_port = htons(static_cast<uint16_t>(port));
    bool ok = ::connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) == 0;
    ::close(fd);
    return ok;
}

} // namespace

int CmdServe(const std::vector<std::string>& args, std::ostream& out, std::ostream& err)
{
    std::string file;
    std::string dataFolder;
    int port = 0;
    for (size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--port" && i + 1 < args.size()) {
            port = std::atoi(args[++i].c_str());
            if (port <= 0 || port > 65535) {
                err << "tarnquill-cli: --port needs a number from 1 to 65535\n";
                return 2;
            }
        } else if (args[i] == "--data-folder" && i + 1 < args.size()) {
            dataFolder = args[++i];
        } else if (file.empty() && args[i].rfind("--", 0) != 0) {
            file = args[i];
        } else {
            err << "usage: tarnquill-cli serve FILE [--port N] [--data-folder DIR]\n";
            return 2;
        }
    }
    if (file.empty()) {
        err << "usage: tarnquill-cli serve FILE [--port N] [--data-folder DIR]\n";
        return 2;
    }
    const std::string php = FindProgram("php");
    if (php.empty()) {
        err << "tarnquill-cli: serve needs PHP's command-line program 'php', which is not installed.\n"
               "Install it with: sudo apt-get install php-cli\n";
        return 1;
    }
    std::error_code ec;
    if (!fs::is_regular_file(file, ec)) {
        err << "tarnquill-cli: cannot read " << file << "\n";
        return 1;
    }

    std::string tmpl = (fs::temp_directory_path() / "tarnquill-serve-XXXXXX").string();
    if (::mkdtemp(tmpl.data()) == nullptr) {
        err << "tarnquill-cli: cannot make a temporary folder: " << std::strerror(errno) << "\n";
        return 1;
    }
    const fs::path root = tmpl;
    const fs::path site = root / "site";
    const fs::path mail = root / "mail";
    fs::create_directories(site, ec);
    fs::create_directories(mail, ec);
    if (dataFolder.empty()) {
        dataFolder = (root / "data").string();
        fs::create_directories(dataFolder, ec);
    }
    auto cleanUp = [&] { fs::remove_all(root, ec); };

    bool found = false;
    const fs::path copy = root / fs::path(file).filename();
    if (!store::WriteFileReplacing(
            copy.string(), PointProjectAt(store::ReadWholeFile(file).value_or(std::string()), site.string(), found)) ||
        !found) {
        err << "tarnquill-cli: " << file << " holds no [Drive Folder Path= to build into\n";
        cleanUp();
        return 1;
    }
    std::ostringstream buildOut;
    int rc = CmdBuild({copy.string(), "--whole-page", "--replace", "--data-folder", dataFolder}, buildOut, err);
    if (rc != 0) {
        cleanUp();
        return rc;
    }
    std::string page;
    for (const auto& e : fs::directory_iterator(site, ec))
        if (model::ToUpper(e.path().extension().string()) == ".HTM" ||
            model::ToUpper(e.path().extension().string()) == ".HTML")
            page = e.path().filename().string();

    const fs::path capture = root / "mail-capture.sh";
    store::WriteFileReplacing(capture.string(), MailCaptureScript(mail.string()));
    fs::permissions(capture, fs::perms::owner_all, ec);

    if (port == 0)
        port = FreePort();
    const std::string address = "127.0.0.1:" + std::to_string(port);
    std::vector<std::string> argv = {php};
    for (auto& a : shell::LocalServerArgs(address, site.string(), capture.string()))
        argv.push_back(std::move(a));
    out.flush();
    pid_t child = ::fork();
    if (child < 0) {
        err << "tarnquill-cli: cannot start php: " << std::strerror(errno) << "\n";
        cleanUp();
        return 1;
    }
    if (child == 0) {
        // the server's own request log would drown the mails: keep it quiet
        int devnull = ::open("/dev/null", O_WRONLY);
        if (devnull >= 0) {
            ::dup2(devnull, STDOUT_FILENO);
            ::dup2(devnull, STDERR_FILENO);
        }
        std::vector<char*> cargv;
        for (auto& a : argv)
            cargv.push_back(a.data());
        cargv.push_back(nullptr);
        ::execv(php.c_str(), cargv.data());
        ::_exit(127);
    }

    g_stop = 0;
    struct sigaction sa
    {
    };
    sa.sa_handler = OnStopSignal;
    sigemptyset(&sa.sa_mask);
    struct sigaction oldInt
    {
    }, oldTerm{};
    ::sigaction(SIGINT, &sa, &oldInt);
    ::sigaction(SIGTERM, &sa, &oldTerm);

    int status = 0;
    bool exited = false;
    bool ready = false;
    for (int i = 0; i < 100 && !ready && !g_stop; ++i) {
        if (::waitpid(child, &status, WNOHANG) == child) {
            exited = true;
            break;
        }
        ready = Accepts(port);
        if (!ready)
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    if (!ready && !g_stop) {
        err << "tarnquill-cli: php could not serve on " << address << " (is the port in use?)\n";
    } else if (ready) {
        out << "Serving " << site.string() << "\n"
            << "URL: http://" << address << "/" << page << "\n"
            << "PHP runs with output_buffering=0, which a download page needs; on your host it must be off too.\n"
            << "Mails are caught and shown here. Press Ctrl-C to stop.\n";
        out.flush();
    }

    std::set<std::string> shown;
    int count = 0;
    while (ready && !g_stop && !exited) {
        if (::waitpid(child, &status, WNOHANG) == child) {
            exited = true;
            break;
        }
        std::vector<fs::path> mails;
        for (const auto& e : fs::directory_iterator(mail, ec))
            if (e.path().filename().string().rfind("mail-", 0) == 0 && !shown.count(e.path().filename().string()))
                mails.push_back(e.path());
        std::sort(mails.begin(), mails.end());
        for (const auto& m : mails) {
            shown.insert(m.filename().string());
            ++count;
            out << "----- mail " << count << " -----\n"
                << store::ReadWholeFile(m.string()).value_or(std::string()) << "\n----- end of mail " << count
                << " -----\n";
            out.flush();
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }

    if (!exited) {
        ::kill(child, SIGTERM);
        ::waitpid(child, &status, 0);
    }
    ::sigaction(SIGINT, &oldInt, nullptr);
    ::sigaction(SIGTERM, &oldTerm, nullptr);
    cleanUp();
    if (ready && g_stop) {
        out << "Stopped; " << root.string() << " removed.\n";
        return 0;
    }
    if (exited && ready)
        err << "tarnquill-cli: php stopped unexpectedly\n";
    return 1;
}

} // namespace tq::cli
