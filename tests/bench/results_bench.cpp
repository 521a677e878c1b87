// SPDX-License-Identifier: GPL-3.0-or-later
// Result mails read from an mbox and counted: 1,000 / 10,000 / 100,000 mails
// of a twelve-question form, and 100,000 unrelated mails around ten results.
// Each run is one read (Iterations(1)) so that the growth of the resident
// memory it reports belongs to that size alone.
#include "bench_support.h"
#include "results/mail_sources.h"
#include "results/result_set.h"
#include "store/text_file.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <unistd.h>

using namespace tq;

namespace {

long ResidentKilobytes()
{
    std::ifstream statm("/proc/self/statm");
    long pages = 0;
    long resident = 0;
    statm >> pages >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

std::string ResultMail(int n)
{
    static const char* const kCountries[] = {"Italy", "Germany", "Sweden", "not selected"};
    std::string body = "A message has been submitted from\r\nShop@\r\n\r\nDate: Monday November 23, 2026\r\n\r\n"
                       "Send from public IP Address\r\n10.0." +
                       std::to_string(n % 250) + "." + std::to_string(n % 200) + "\r\n\r\n";
    body += "1. Enter your full name\r\nVisitor " + std::to_string(n) + "\r\n\r\n";
    body += "2. Enter your Email Address\r\nv" + std::to_string(n) + "@example.com\r\n\r\n";
    for (int q = 3; q <= 10; ++q)
        body +=
            std::to_string(q) + ". Question " + std::to_string(q) + "?\r\n" + ((n + q) % 3 ? "yes" : "no") + "\r\n\r\n";
    body += "11. Select a country\r\n" + std::string(kCountries[n % 4]) + "\r\n\r\n";
    body += "12. Select your level\r\nChecked: Beginner\nChecked: Advanced\n\r\n\r\nEnd of message\r\n";
    return "From visitor@localhost Mon Nov 23 10:00:00 2026\nTo: a@example.com\r\nSubject: Order\r\nMessage-ID: <" +
           std::to_string(n) + "@bench>\r\nfrom: Shop@\r\n\r\n" + body + "\n";
}

std::string UnrelatedMail(int n)
{
    return "From list@localhost Mon Nov 23 10:00:00 2026\nFrom: list@example.com\r\nSubject: Digest " +
           std::to_string(n) + "\r\nMessage-ID: <u" + std::to_string(n) + "@bench>\r\n\r\nToday's news, part " +
           std::to_string(n) + ".\r\n\n";
}

// Writes the mbox once per size and keeps it for the run.
std::string MboxOf(int results, int unrelated)
{
    const std::string path =
        bench::MakeTempFolder("results") + "/r" + std::to_string(results) + "u" + std::to_string(unrelated) + ".mbox";
    std::string bytes;
    const int all = results + unrelated;
    int placed = 0;
    for (int i = 0; i < all; ++i) {
        // the results spread evenly among the unrelated mails
        const bool result = results > 0 && static_cast<long>(placed) * all <= static_cast<long>(i) * results;
        bytes += result ? ResultMail(placed++) : UnrelatedMail(i);
    }
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

void ReadAndCount(benchmark::State& state, int results, int unrelated)
{
    const std::string path = MboxOf(results, unrelated);
    const long before = ResidentKilobytes();
    for (auto _ : state) {
        results::ResultSet set;
        std::string error;
        if (!results::ReadMailSource(
                path, [&set](std::string_view m, const std::string& o) { results::AddMail(set, m, o); }, error))
            state.SkipWithError(error.c_str());
        const auto counts = results::CountAnswers(set);
        state.counters["rows"] = static_cast<double>(set.rows.size());
        state.counters["skipped"] = static_cast<double>(results::SkippedCount(set));
        state.counters["rss_growth_MB"] = static_cast<double>(ResidentKilobytes() - before) / 1024.0;
        benchmark::DoNotOptimize(counts);
    }
    state.counters["mbox_MB"] = static_cast<double>(std::filesystem::file_size(path)) / (1024.0 * 1024.0);
    std::filesystem::remove_all(std::filesystem::path(path).parent_path());
}

void BM_ReadAndCountResults(benchmark::State& state)
{
    ReadAndCount(state, static_cast<int>(state.range(0)), 0);
}

void BM_TenResultsAmongUnrelated(benchmark::State& state)
{
    ReadAndCount(state, 10, static_cast<int>(state.range(0)));
}

} // namespace

BENCHMARK(BM_ReadAndCountResults)->Arg(1000)->Arg(10000)->Arg(100000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TenResultsAmongUnrelated)->Arg(100000)->Iterations(1)->Unit(benchmark::kMillisecond);
