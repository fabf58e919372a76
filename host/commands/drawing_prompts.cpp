#include "host/commands/drawing_prompts.h"

#include <cmath>
#include <cstdio>

#include "adscodes.h"

namespace host::cmd {

bool isOneOf(const CommandToken& t, Keywords keys) {
    for (const auto& forms : keys)
        if (isKeyword(t, forms)) return true;
    return false;
}

const CommandToken* askPoint(CommandInput& in, std::wstring_view promptText, double p[3], Keywords keys) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (t->isEnter() || isOneOf(*t, keys) || readPoint(*t, p)) return t;
        say(keys.size() ? L"\nPoint or option keyword required." : L"\nInvalid point.");
    }
    return nullptr;
}

const CommandToken* askDistance(CommandInput& in, std::wstring_view promptText, const double* base, double& v,
                                bool positive, Keywords keys) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (t->isEnter() || isOneOf(*t, keys)) return t;
        double value, p[3];
        bool read = readReal(*t, value);
        if (!read && base && readPoint(*t, p)) {
            value = std::hypot(p[0] - base[0], p[1] - base[1]);
            read = true;
        }
        if (!read || !std::isfinite(value)) {
            say(L"\nRequires numeric distance or second point.");
        } else if (positive && !(value > 0)) {
            say(L"\nValue must be positive and nonzero.");
        } else {
            v = value;
            return t;
        }
    }
    return nullptr;
}

const CommandToken* askAngle(CommandInput& in, std::wstring_view promptText, const double* base, double& radians,
                             bool absolute, Keywords keys) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (t->isEnter() || isOneOf(*t, keys)) return t;
        double degrees, p[3];
        if (readReal(*t, degrees) && std::isfinite(degrees)) {
            radians = absolute ? toRadians(degrees) : toRadians(degrees) - toRadians(0.0);
            return t;
        }
        if (base && readPoint(*t, p) && (p[0] != base[0] || p[1] != base[1])) {
            radians = std::atan2(p[1] - base[1], p[0] - base[0]);
            return t;
        }
        say(L"\nRequires valid numeric angle or second point.");
    }
    return nullptr;
}

const CommandToken* askYesNo(CommandInput& in, std::wstring_view promptText, bool& yes) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (t->isEnter()) return t;
        if (isKeyword(*t, {L"YES", L"Y"}) || isKeyword(*t, {L"NO", L"N"})) {
            yes = isKeyword(*t, {L"YES", L"Y"});
            return t;
        }
        say(L"\nInvalid option keyword.");
    }
    return nullptr;
}

std::wstring format4(double v) {
    wchar_t buf[40];
    std::swprintf(buf, 40, L"%.4f", v);
    return buf;
}

}  // namespace host::cmd
