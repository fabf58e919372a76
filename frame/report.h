// A fixed message and the way it reaches the user. Each handler keeps its own texts and its
// own channel; helpers that can fail take the message as a parameter and report it this way.
#pragma once

#include "adscodes.h"

namespace vrn2 {

enum class Channel {
    Fail,   // acdbFail
    Alert,  // acedAlert, a message box
    Print,  // acutPrintf, the command line
};

struct Message {
    Channel channel = Channel::Print;
    const wchar_t* text = nullptr;  // null: nothing is reported
};

// Reports MESSAGE through its channel; a message without text reports nothing.
void report(const Message& message);

// Reports MESSAGE and answers STATUS: the way out of a handler or helper that stops at a fault.
int reportFailure(const Message& message, int status = RTERROR);
// The same on the command line, where the AutoLISP utility functions tell their faults.
inline int printFailure(const wchar_t* text, int status = RTERROR) {
    return reportFailure({Channel::Print, text}, status);
}

}  // namespace vrn2
