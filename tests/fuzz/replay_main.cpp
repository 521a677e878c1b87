// SPDX-License-Identifier: GPL-3.0-or-later
// Runs every file of the given folders (or the given files) through the fuzz
// entry point once, so the corpus doubles as a regression test.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

static void RunOne(const std::filesystem::path& p)
{
    std::ifstream in(p, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    std::string bytes = ss.str();
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}

int main(int argc, char** argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        std::filesystem::path p(argv[i]);
        if (std::filesystem::is_directory(p)) {
            for (const auto& e : std::filesystem::recursive_directory_iterator(p))
                if (e.is_regular_file()) {
                    RunOne(e.path());
                    ++count;
                }
        } else if (std::filesystem::exists(p)) {
            RunOne(p);
            ++count;
        }
    }
    std::printf("replayed %d inputs\n", count);
    return 0;
}
