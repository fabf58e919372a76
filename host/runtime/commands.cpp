#include "host/runtime/commands.h"

#include <cstdarg>
#include <cstring>
#include <map>

#include "acedads.h"
#include "acutads.h"
#include "host/boundary.h"
#include "host/dcl/dcl.h"
#include "host/output.h"
#include "host/runtime/host.h"
#include "host/text.h"

namespace host {
namespace {

// The commands the host knows: filled once by the registrations of the command files when
// the library loads, and only read afterwards. It is code, not state of a session.
std::map<std::wstring, CommandHandler>& commands() {
    static std::map<std::wstring, CommandHandler> table;
    return table;
}

std::wstring commandName(std::wstring_view text) {
    std::wstring_view name = text;
    while (!name.empty() && (name.front() == L'_' || name.front() == L'.')) name.remove_prefix(1);
    return upperAscii(name);
}

bool tokenFrom(const resbuf* rb, CommandToken& t) {
    t.type = rb->restype;
    switch (rb->restype) {
    case RTSTR: t.text = rb->resval.rstring ? rb->resval.rstring : L""; return true;
    case RTREAL:
    case RTANG:
    case RTORINT: t.type = RTREAL; t.real = rb->resval.rreal; return true;
    case RTSHORT: t.integer = rb->resval.rint; t.real = rb->resval.rint; return true;
    case RTLONG: t.type = RTSHORT; t.integer = static_cast<short>(rb->resval.rlong); t.real = static_cast<double>(rb->resval.rlong); return true;
    case RTPOINT:
    case RT3DPOINT: std::memcpy(t.point, rb->resval.rpoint, sizeof t.point); if (rb->restype == RTPOINT) t.point[2] = 0; return true;
    case RTENAME:
    case RTPICKS: t.name[0] = rb->resval.rlname[0]; t.name[1] = rb->resval.rlname[1]; return true;
    default: return false;
    }
}

int runResbufs(const resbuf* rb) {
    std::vector<CommandToken> tokens;
    for (; rb; rb = rb->rbnext) {
        CommandToken t;
        if (!tokenFrom(rb, t)) return RTREJ;
        tokens.push_back(std::move(t));
    }
    CommandInput input(std::move(tokens));
    return runCommands(input);
}

}  // namespace

bool CommandToken::isEnter() const { return type == RTSTR && text.empty(); }

void registerCommand(const std::wstring& name, CommandHandler handler) {
    commands()[commandName(name)] = std::move(handler);
}

int runCommands(CommandInput& input) {
    if (!Host::instance().hasDocument()) return RTERROR;
    while (!input.atEnd()) {
        const CommandToken* t = input.next();
        if (t->isEnter()) continue;  // Enter at the command prompt repeats nothing here
        if (t->type != RTSTR) return RTREJ;
        auto it = commands().find(commandName(t->text));
        if (it == commands().end()) {
            acutPrintf(L"\nUnknown command \"%ls\".  Press F1 for help.\n", upperAscii(t->text).c_str());
            return RTERROR;
        }
        int status = it->second(input);
        if (status != RTNORM) return status;
    }
    return RTNORM;
}

}  // namespace host

extern "C" int acedCmd(const struct resbuf* rbp) {
    return host::guarded(__func__, RTERROR, [&]() -> int {
        if (host::dcl::rejectWhileDialogOpen(L"acedCmd")) return RTREJ;
        return host::runResbufs(rbp);
    });
}

extern "C" int acedCommand(int rtype, ...) {
    va_list args;
    va_start(args, rtype);
    int result = host::guarded(__func__, RTERROR, [&]() -> int {
        if (host::dcl::rejectWhileDialogOpen(L"acedCommand")) return RTREJ;
        std::vector<host::CommandToken> tokens;
        int status = RTNORM;
        for (int type = rtype; type != 0 && type != RTNONE; type = va_arg(args, int)) {
            host::CommandToken t;
            t.type = type;
            switch (type) {
            case RTSTR: {
                const ACHAR* s = va_arg(args, const ACHAR*);
                t.text = s ? s : L"";
                break;
            }
            case RTREAL:
            case RTANG:
            case RTORINT: t.type = RTREAL; t.real = va_arg(args, double); break;
            case RTSHORT: t.integer = static_cast<short>(va_arg(args, int)); t.real = t.integer; break;
            case RTLONG: t.type = RTSHORT; t.integer = static_cast<short>(va_arg(args, long)); t.real = t.integer; break;
            case RTPOINT:
            case RT3DPOINT: {
                const double* p = va_arg(args, const double*);
                t.point[0] = p[0];
                t.point[1] = p[1];
                t.point[2] = type == RT3DPOINT ? p[2] : 0.0;
                break;
            }
            case RTENAME:
            case RTPICKS: {
                const long* n = va_arg(args, const long*);
                t.name[0] = n[0];
                t.name[1] = n[1];
                break;
            }
            default: status = RTREJ; break;
            }
            if (status != RTNORM) break;
            tokens.push_back(std::move(t));
        }
        if (status != RTNORM) return status;
        host::CommandInput input(std::move(tokens));
        return host::runCommands(input);
    });
    va_end(args);
    return result;
}
