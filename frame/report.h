// A fixed message and the way it reaches the user. Each handler keeps its own texts and its
// own channel; helpers that can fail take the message as a parameter and report it this way.
#pragma once

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

}  // namespace vrn2
