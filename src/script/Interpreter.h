#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "script/Stage.h"
#include "services/Programma.h"

namespace forms {
class Control;
}

namespace script {

// A program driven by commands, one a line. Lines and answers are UTF-8.
class Interpreter {
public:
    explicit Interpreter(std::unique_ptr<Stage> stage);

    // Carries out one line and gives the answer, of one line or more, without a line end; empty for a blank line, a
    // comment, and after `quit`. What the stage does not show as the program has it is an error.
    std::string run(const std::string& line);

    bool finished() const { return finished_; }  // after `quit`
    bool failed() const { return failed_; }      // some command was wrong

private:
    const std::unique_ptr<Stage> stage_;

public:
    ScriptPlatform& platform;
    services::Programma programma;

private:
    using Command = std::string (Interpreter::*)(const std::string& arguments);
    static const std::map<std::string, Command>& commands();
    std::string error(const std::string& why);
    std::string carry_out(Command command, const std::string& arguments);

    std::string start(const std::string& arguments);
    std::string click(const std::string& arguments);
    std::string select(const std::string& arguments);
    std::string type(const std::string& arguments);
    std::string text(const std::string& arguments);
    std::string scroll(const std::string& arguments);
    std::string key(const std::string& arguments);
    std::string close(const std::string& arguments);
    std::string activate(const std::string& arguments);
    std::string resize(const std::string& arguments);
    std::string window(const std::string& arguments);
    std::string tick(const std::string& arguments);
    std::string wait(const std::string& arguments);
    std::string answer(const std::string& arguments);
    std::string get(const std::string& arguments);
    std::string dump(const std::string& arguments);
    std::string screens(const std::string& arguments);
    std::string shared(const std::string& arguments);
    std::string boxes(const std::string& arguments);
    std::string clipboard(const std::string& arguments);
    std::string opened(const std::string& arguments);
    std::string keys(const std::string& arguments);
    std::string online(const std::string& arguments);
    std::string serve(const std::string& arguments);
    std::string drive(const std::string& arguments);
    std::string nodrives(const std::string& arguments);
    std::string screen(const std::string& arguments);
    std::string quit(const std::string& arguments);

    bool finished_ = false;
    bool failed_ = false;
};

}  // namespace script
