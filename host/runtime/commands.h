// Host commands issued by the module through acedCommand/acedCmd. Each command reads the
// inputs that follow its name from the input stream, as the editor's command line would.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "adsdef.h"

namespace host {

struct CommandToken {
    int type = 0;  // RTSTR, RTREAL, RTSHORT, RTPOINT, RT3DPOINT, RTENAME, RTPICKS
    std::wstring text;
    double real = 0.0;
    double point[3] = {0, 0, 0};
    long name[2] = {0, 0};
    short integer = 0;
    bool isEnter() const;  // an empty string: Enter
};

class CommandInput {
public:
    explicit CommandInput(std::vector<CommandToken> tokens) : tokens_(std::move(tokens)) {}
    bool atEnd() const { return pos_ >= tokens_.size(); }
    const CommandToken* peek() const { return atEnd() ? nullptr : &tokens_[pos_]; }
    const CommandToken* next() { return atEnd() ? nullptr : &tokens_[pos_++]; }

private:
    std::vector<CommandToken> tokens_;
    size_t pos_ = 0;
};

// A command answers RTNORM, or RTERROR/RTREJ when its input does not fit.
using CommandHandler = std::function<int(CommandInput&)>;

// Registers a command under its name (upper-case, without the "_" and "." prefixes).
void registerCommand(const std::wstring& name, CommandHandler handler);
// Runs the commands of a token stream; RTNORM when all ran.
int runCommands(CommandInput& input);

// Registers a function at load time: `static CommandRegistration r(L"LINE", &lineCommand);`
struct CommandRegistration {
    CommandRegistration(const std::wstring& name, CommandHandler handler) {
        registerCommand(name, std::move(handler));
    }
};

}  // namespace host
