#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/Paths.h"
#include "script/Interpreter.h"

// What carries the programs of a test executable: each links one of the two hosts.
std::unique_ptr<script::Stage> make_stage(const std::string& program_folder);

// What that host needs to be there as long as its programs.
class HostOfTests {
public:
    HostOfTests(int& argc, char** argv);
    ~HostOfTests();
    HostOfTests(const HostOfTests&) = delete;

private:
    struct State;
    std::unique_ptr<State> state_;
};

// A program of its own in a temporary folder, driven as a user drives it. The folder goes with it.
class Program {
public:
    Program();
    ~Program();
    Program(const Program&) = delete;

    // Carries out commands of the script host, one a line, and gives the answer of the last one. A command that is
    // wrong fails the test.
    std::string operator()(const std::string& commands);
    // The value of NAME.PROPERTY.
    std::string get(const std::string& name);
    std::string shared(const std::string& name);

    // Makes the companion program known, with its folder inside the program folder.
    void install_companion();
    // Copies the sample packages and the companion's deals into the folder.
    void add_samples();

    // Work on files below the program folder; `path` has "/" for the separator.
    void write(const std::string& path, const std::string& bytes);
    std::string read(const std::string& path) const;
    bool exists(const std::string& path) const;
    std::filesystem::path path(const std::string& path = {}) const {
        return path.empty() ? folder_ : (folder_ / platform::path_of(path)).make_preferred();
    }
    // All files and folders below a folder, sorted, with the contents of the files.
    std::vector<std::string> tree(const std::string& path) const;

private:
    std::filesystem::path folder_;

public:
    script::Interpreter interpreter;
    services::Programma& programma;
};

// A package whose play is legal, by its suit lengths and leader: a simple one for tests that need any package.
struct Package {
    std::string name = "QVT_Spel 012";
    std::vector<std::string> rows;                     // of " aftavrin.txt"
    std::string lead = "West - 0Aas";                  // of " Uitkomst.txt"
    std::string contract = "Zuid 4 Harten";            // of " Contract.txt"
    std::vector<std::pair<int, std::string>> texts{};  // of " informatie.txt", by number of the card
    std::string question;                              // of " vraag.txt"; none if empty

    // Thirteen rows in which each seat has one suit: West leads spades and wins every trick.
    static Package west_wins_all();
};
void write_package(Program& program, const Package& package);
