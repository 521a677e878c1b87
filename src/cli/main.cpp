// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_cli.h"

#include <iostream>

int main(int argc, char** argv)
{
    std::vector<std::string> args(argv + 1, argv + argc);
    return tq::cli::RunCli(args, std::cin, std::cout, std::cerr);
}
