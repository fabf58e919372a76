// Around host commands: CMDECHO, BLIPMODE and HIGHLIGHT are saved, set to 0, and set back
// when the guard goes out of scope, on every way out of the handler.
#pragma once

namespace vrn2 {

class CommandEnvironment {
public:
    CommandEnvironment();
    ~CommandEnvironment();
    CommandEnvironment(const CommandEnvironment&) = delete;
    CommandEnvironment& operator=(const CommandEnvironment&) = delete;

private:
    static constexpr int kCount = 3;
    short saved_[kCount] = {0, 0, 0};
    bool valid_[kCount] = {false, false, false};
};

}  // namespace vrn2
