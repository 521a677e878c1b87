// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace tq::test {

namespace {

/// The front of `queue`, taken off; `none` when it is empty, and a failure of
/// the running test when the test did not say that it may be (`unexpected` set).
template <typename T> T Next(std::deque<T>& queue, T none, const std::string& unexpected)
{
    if (queue.empty()) {
        if (!unexpected.empty())
            ADD_FAILURE() << "unexpected " << unexpected;
        return none;
    }
    T front = std::move(queue.front());
    queue.pop_front();
    return front;
}

std::string Named(std::string_view title, std::string_view text)
{
    return std::string(title) + ": " + std::string(text);
}

} // namespace

void ScriptedPort::message(std::string_view text, std::string_view title, Icon icon)
{
    shown.push_back({"message", std::string(text), std::string(title), icon, Buttons::Ok, 1});
}

Answer ScriptedPort::ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int defaultButton)
{
    shown.push_back({"ask", std::string(text), std::string(title), icon, buttons, defaultButton});
    return Next(answers, buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel, "question: " + Named(title, text));
}

std::optional<std::string> ScriptedPort::inputBox(std::string_view prompt, std::string_view title, std::string_view)
{
    shown.push_back({"input", std::string(prompt), std::string(title), Icon::None, Buttons::Ok, 0});
    return Next(inputs, std::optional<std::string>{}, "input box: " + Named(title, prompt));
}

static std::optional<std::string> TakeFile(ScriptedPort& p, const char* kind, std::string_view title)
{
    p.shown.push_back({kind, "", std::string(title), Icon::None, Buttons::Ok, 0});
    return Next(p.files, std::optional<std::string>{}, std::string(kind) + " dialog: " + std::string(title));
}

std::optional<std::string> ScriptedPort::openFileDialog(const FileDialogOptions& options)
{
    return TakeFile(*this, "open", options.title);
}

std::optional<std::string> ScriptedPort::saveFileDialog(const FileDialogOptions& options)
{
    return TakeFile(*this, "save", options.title);
}

std::optional<std::string> ScriptedPort::browseForFolder(std::string_view title, std::string_view)
{
    return TakeFile(*this, "folder", title);
}

std::optional<long> ScriptedPort::chooseColor(long, std::string_view title)
{
    shown.push_back({"color", "", std::string(title), Icon::None, Buttons::Ok, 0});
    return Next(colors, std::optional<long>{}, "colour dialog");
}

void ScriptedPort::openEditPage(int page, int row, std::string_view selectKey)
{
    editCalls.push_back({page, row, std::string(selectKey)});
}

bool ScriptedPort::startProgram(std::string_view program,
                                const std::vector<std::string>& args,
                                std::string_view workingFolder)
{
    started.push_back({std::string(program), args, std::string(workingFolder)});
    return startResult;
}

bool ScriptedPort::openTarget(std::string_view target)
{
    opened.emplace_back(target);
    return openResult;
}

std::optional<std::string> ScriptedPort::httpGet(std::string_view url, int)
{
    httpUrls.emplace_back(url);
    return Next(httpBodies, std::optional<std::string>{}, "");
}

std::vector<Shown> ScriptedPort::messages() const
{
    std::vector<Shown> out;
    for (const auto& s : shown)
        if (s.kind == "message")
            out.push_back(s);
    return out;
}

const Shown& ScriptedPort::last() const
{
    static const Shown none{};
    if (shown.empty()) {
        ADD_FAILURE() << "no message was shown";
        return none;
    }
    return shown.back();
}

::testing::AssertionResult Said(const Shown& m, std::string_view text, std::string_view title, Icon icon)
{
    if (m.text == text && m.title == title && (icon == Icon::None || m.icon == icon))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "shown \"" << m.title << ": " << m.text << "\" (icon "
                                         << static_cast<int>(m.icon) << "), expected \"" << title << ": " << text
                                         << "\" (icon " << static_cast<int>(icon) << ")";
}

std::string ReadFileBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

void WriteFileBytes(const std::string& path, const std::string& bytes)
{
    std::filesystem::path p(path);
    if (p.has_parent_path())
        std::filesystem::create_directories(p.parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

TempDir::TempDir()
{
    static std::atomic<int> counter{0};
    std::random_device rd;
    auto base = std::filesystem::temp_directory_path();
    for (;;) {
        auto p = base / ("tq-test-" + std::to_string(rd()) + "-" + std::to_string(counter++));
        if (std::filesystem::create_directory(p)) {
            m_path = p.string();
            break;
        }
    }
}

TempDir::~TempDir()
{
    std::error_code ec;
    std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, ec);
    std::filesystem::remove_all(m_path, ec);
}

std::string TempDir::file(std::string_view name) const
{
    std::string out = m_path;
    out += '/';
    while (!name.empty() && (name.front() == '/' || name.front() == '\\'))
        name.remove_prefix(1);
    out += name;
    return out;
}

} // namespace tq::test
