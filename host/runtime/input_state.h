// The session's queues of interactive input and the acedInitGet settings of the next request.
#pragma once

#include <array>
#include <deque>
#include <optional>
#include <string>

#include "host/runtime/input.h"

namespace host {

// What acedInitGet set for the next request.
struct InputControl {
    int flags = 0;
    std::wstring keywords;
};

struct InputState {
    struct EntityPick {
        ads_name ent;
        ads_point pt;
    };
    std::deque<EntityPick> entityPicks;
    std::deque<std::array<double, 3>> pointPicks;
    std::deque<TypedReply> replies;
    InputControl next;
    std::optional<std::wstring> lastKeyword;  // what acedGetInput gives
};

InputState& inputState();

// The settings acedInitGet made, taken by the request that starts: they apply to it only.
InputControl takeInputControl();

}  // namespace host
