#include <cstdio>
#include <cstdlib>
#include <string>

#include "monkey/Monkey.h"
#include "platform/Paths.h"
#include "support/Program.h"
#include "support/System.h"

// zandolin_monkey [ACTIONS [SEED]]: random actions on the host that the program is linked with; exit status 1 at the
// first fault, with the commands that led to it.
int main(int argc, char** argv) {
    const HostOfTests host(argc, argv);
    const long actions = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 20000;
    const auto seed = static_cast<unsigned>(argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1);
    const std::filesystem::path folder = new_temporary_folder();
    int status = EXIT_SUCCESS;
    {
        Monkey monkey(folder, SAMPLES_DIR, seed,
                      [](const auto& program) { return make_stage(platform::path_text(program)); });
        for (long action = 0; action < actions && status == EXIT_SUCCESS; ++action) {
            const std::string problem = monkey.act();
            if (problem.empty()) continue;
            for (const std::string& command : monkey.trail())
                std::printf("%s\n", command.c_str());
            std::printf("seed %u, action %ld: %s\n", seed, action, problem.c_str());
            status = EXIT_FAILURE;
        }
        std::printf("seed %u: %d starts, %d reports\n", seed, monkey.starts(), monkey.reports());
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return status;
}
