// Issuing host commands (LAYER, LINE, TEXT, DONUT, BREAK, ERASE, STYLE, COLOR, ZOOM ...). A
// HostCommands object holds the command environment for its lifetime (CMDECHO, BLIPMODE and
// HIGHLIGHT at 0, set back on every way out) and issues commands in either of the host's
// forms, answering whether each ran. It prints nothing: the caller knows what a failure means
// and says so.
//
//     HostCommands commands;
//     if (!commands.run(RTSTR, L"LINE", RT3DPOINT, a, RT3DPOINT, b, RTSTR, L"")) return commands.status();
#pragma once

#include "acedads.h"
#include "frame/command_environment.h"

namespace vrn2 {

class HostCommands {
public:
    HostCommands() = default;
    HostCommands(const HostCommands&) = delete;
    HostCommands& operator=(const HostCommands&) = delete;

    // One command through acedCommand: the type and value pairs as acedCommand takes them
    // (reals as double, points as ads_point); the closing RTNONE is added here. False when the
    // host did not answer RTNORM.
    template <class... Inputs>
    bool run(Inputs... inputs) {
        return record(acedCommand(inputs..., RTNONE));
    }
    // One command through acedCmd, from a list of inputs such as ListBuilder makes.
    bool runList(const resbuf* inputs) { return record(acedCmd(inputs)); }

    // RTNORM while every command ran; otherwise the status of the first that did not.
    int status() const { return status_; }
    bool failed() const { return status_ != RTNORM; }
    // The status of the last command issued.
    int lastStatus() const { return last_; }

private:
    bool record(int status) {
        last_ = status;
        if (status != RTNORM && status_ == RTNORM) status_ = status;
        return status == RTNORM;
    }

    CommandEnvironment environment_;
    int status_ = RTNORM;
    int last_ = RTNORM;
};

}  // namespace vrn2
