// Typed input: acedInitGet and the get-functions, answered from the session's queue of typed
// replies. A request prints its prompt and takes the next reply. A bare Enter answers RTNONE
// unless acedInitGet forbade it (RSG_NONULL); a reply of the requested kind answers RTNORM
// when it passes the RSG_NOZERO and RSG_NONEG checks the function honours; a text that is none
// of these is looked up in the keyword list (RTKWORD, the keyword for acedGetInput) or taken
// as arbitrary input under RSG_OTHER. Any other reply prints the editor's message and prompts
// again with the next reply. With nothing queued the request is cancelled: RTCAN.
#include <cmath>
#include <cstring>
#include <cwctype>
#include <optional>
#include <string>
#include <utility>

#include "acdbads.h"
#include "acedads.h"
#include "acutads.h"
#include "host/boundary.h"
#include "host/db/api_support.h"
#include "host/db/sysvars.h"
#include "host/dcl/dcl.h"
#include "host/runtime/input_state.h"
#include "host/runtime/keywords.h"
#include "host/runtime/typed_reply.h"

namespace host {
namespace {

constexpr size_t kStringLimit = 132;   // characters acedGetString gives back
constexpr size_t kKeywordLimit = 131;  // characters acedGetKword and acedGetInput give back
constexpr double kTwoPi = 6.283185307179586;

constexpr const wchar_t* kRequiresNumber = L"Requires numeric value.";
constexpr const wchar_t* kRequiresInteger = L"Requires an integer value.";
constexpr const wchar_t* kRequiresDistance = L"Requires numeric distance or second point.";
constexpr const wchar_t* kRequiresAngle = L"Requires valid numeric angle or second point.";
constexpr const wchar_t* kRequiresPoint = L"Invalid point.";
constexpr const wchar_t* kRequiresKeyword = L"Invalid option keyword.";

// How a reply fares with the function that asked.
struct Verdict {
    enum class Kind { Accepted, Rejected, OtherKind } kind = Kind::OtherKind;
    std::wstring message;  // Rejected: why
};

Verdict accepted() { return {Verdict::Kind::Accepted, {}}; }
Verdict rejected(std::wstring message) { return {Verdict::Kind::Rejected, std::move(message)}; }
Verdict otherKind() { return {}; }

void copyLimited(const std::wstring& text, size_t limit, ACHAR* out) {
    size_t n = std::min(text.size(), limit);
    text.copy(out, n);
    out[n] = L'\0';
}

// ---- Checks of acedInitGet ---------------------------------------------------------------

std::optional<std::wstring> rangeProblem(double v, int flags) {
    bool noZero = (flags & RSG_NOZERO) != 0, noNegative = (flags & RSG_NONEG) != 0;
    if (!((noZero && v == 0.0) || (noNegative && v < 0.0))) return std::nullopt;
    if (noZero && noNegative) return L"Value must be positive and nonzero.";
    return noZero ? L"Value must be nonzero." : L"Value must be positive.";
}

short variable(const wchar_t* name, short fallback) {
    SysVars* vars = db::currentVariables();
    const SysVarValue* v = vars ? vars->find(name) : nullptr;
    return v ? v->integer : fallback;
}

double realVariable(const wchar_t* name) {
    SysVars* vars = db::currentVariables();
    const SysVarValue* v = vars ? vars->find(name) : nullptr;
    return v ? v->real : 0.0;
}

double normalised(double a) {
    a = std::fmod(a, kTwoPi);
    return a < 0.0 ? a + kTwoPi : a;
}

// ---- The request loop --------------------------------------------------------------------

std::optional<TypedReply> nextReply() {
    auto& q = inputState().replies;
    if (q.empty()) return std::nullopt;
    TypedReply r = std::move(q.front());
    q.pop_front();
    return r;
}

void printPrompt(const ACHAR* prompt, bool again) {
    if (!prompt) return;
    if (again && prompt[0] != L'\n') acutPrintf(L"\n");
    acutPrintf(L"%ls", prompt);
}

struct Asking {
    const wchar_t* function;   // for the refusal while a dialog is open
    const ACHAR* prompt;
    int honoured;              // the acedInitGet bits this function heeds
    const wchar_t* wrongKind;  // the message for a reply of another kind
};

// Runs one request; READ(reply, flags) judges every reply but a bare Enter.
template <class Read>
int ask(const Asking& a, Read read) {
    if (dcl::rejectWhileDialogOpen(a.function)) return RTREJ;
    InputControl control = takeInputControl();
    int flags = control.flags & a.honoured;
    KeywordList keywords(control.keywords);
    for (bool again = false;; again = true) {
        printPrompt(a.prompt, again);
        std::optional<TypedReply> reply = nextReply();
        if (!reply) {
            acutPrintf(L"*Cancel*\n");
            return RTCAN;
        }
        std::wstring problem = a.wrongKind;
        if (reply->kind == TypedReply::Kind::Enter) {
            if (!(flags & RSG_NONULL)) return RTNONE;
        } else {
            Verdict v = read(*reply, control.flags & (a.honoured | RSG_OTHER));
            if (v.kind == Verdict::Kind::Accepted) return RTNORM;
            if (v.kind == Verdict::Kind::Rejected) {
                problem = v.message;
            } else if (auto keyword = keywords.match(trimmed(textOf(*reply)))) {
                inputState().lastKeyword = *keyword;
                return RTKWORD;
            } else if ((control.flags & RSG_OTHER) && reply->kind == TypedReply::Kind::Text) {
                inputState().lastKeyword = reply->text;
                return RTKWORD;
            }
        }
        acutPrintf(L"\n%ls", problem.c_str());
    }
}

using Point = std::array<double, 3>;

// The two points of a distance or an angle shown by points: the base point and the reply, or
// without a base point the reply and a second point, the next reply.
std::optional<std::pair<Point, Point>> shownByPoints(const ads_point base, const Point& replied) {
    if (base) return std::pair{Point{base[0], base[1], base[2]}, replied};
    acutPrintf(L"\nSpecify second point: ");
    std::optional<TypedReply> reply = nextReply();
    std::optional<Point> second = reply ? pointOf(*reply) : std::nullopt;
    if (!second) return std::nullopt;
    return std::pair{replied, *second};
}

// Degrees, grads or radians as AUNITS says, counter-clockwise unless ANGDIR says otherwise.
double typedAngle(double value) {
    short units = variable(L"AUNITS", 0);
    double radians = units == 3 ? value : value * (units == 2 ? kTwoPi / 400.0 : kTwoPi / 360.0);
    if (variable(L"ANGDIR", 0) == 1) radians = -radians;
    return normalised(radians);
}

}  // namespace
}  // namespace host

using host::TypedReply;
using host::Verdict;

extern "C" int acedInitGet(int val, const ACHAR* kwl) {
    return host::guarded(__func__, RTERROR, [&] {
        host::inputState().next = host::InputControl{val, kwl ? kwl : L""};
        return RTNORM;
    });
}

extern "C" int acedGetInput(ACHAR* str) {
    return host::guarded(__func__, RTERROR, [&] {
        const auto& keyword = host::inputState().lastKeyword;
        if (!str || !keyword) return RTERROR;
        host::copyLimited(*keyword, host::kKeywordLimit, str);
        return RTNORM;
    });
}

extern "C" int acedGetReal(const ACHAR* prompt, ads_real* result) {
    return host::guarded(__func__, RTERROR, [&] {
        if (!result) return RTERROR;
        host::Asking a{L"acedGetReal", prompt, RSG_NONULL | RSG_NOZERO | RSG_NONEG, host::kRequiresNumber};
        return host::ask(a, [&](const TypedReply& r, int flags) {
            auto v = host::numberOf(r);
            if (!v) return host::otherKind();
            if (auto problem = host::rangeProblem(*v, flags)) return host::rejected(*problem);
            *result = *v;
            return host::accepted();
        });
    });
}

extern "C" int acedGetInt(const ACHAR* prompt, int* result) {
    return host::guarded(__func__, RTERROR, [&] {
        if (!result) return RTERROR;
        host::Asking a{L"acedGetInt", prompt, RSG_NONULL | RSG_NOZERO | RSG_NONEG, host::kRequiresInteger};
        return host::ask(a, [&](const TypedReply& r, int flags) {
            std::optional<long long> v = host::integerOf(r);
            if (!v) return host::otherKind();
            // The editor's integers are 16-bit.
            if (*v < -32768 || *v > 32767) return host::rejected(L"Requires an integer between -32768 and 32767.");
            if (auto problem = host::rangeProblem(static_cast<double>(*v), flags)) return host::rejected(*problem);
            *result = static_cast<int>(*v);
            return host::accepted();
        });
    });
}

extern "C" int acedGetDist(const ads_point pt, const ACHAR* prompt, ads_real* result) {
    return host::guarded(__func__, RTERROR, [&] {
        if (!result) return RTERROR;
        host::Asking a{L"acedGetDist", prompt, RSG_NONULL | RSG_NOZERO | RSG_NONEG | RSG_2D, host::kRequiresDistance};
        return host::ask(a, [&](const TypedReply& r, int flags) {
            std::optional<double> v;
            if (r.kind == TypedReply::Kind::Text) {
                ads_real typed;
                if (acdbDisToF(r.text.c_str(), -1, &typed) == RTNORM) v = typed;
            } else {
                v = host::numberOf(r);
            }
            if (!v) {
                auto p = host::pointOf(r);
                if (!p) return host::otherKind();
                auto points = host::shownByPoints(pt, *p);
                if (!points) return host::rejected(host::kRequiresDistance);
                auto& [from, to] = *points;
                double dz = flags & RSG_2D ? 0.0 : to[2] - from[2];
                v = std::hypot(to[0] - from[0], to[1] - from[1], dz);
            }
            if (auto problem = host::rangeProblem(*v, flags)) return host::rejected(*problem);
            *result = *v;
            return host::accepted();
        });
    });
}

extern "C" int acedGetAngle(const ads_point pt, const ACHAR* prompt, ads_real* result) {
    return host::guarded(__func__, RTERROR, [&] {
        if (!result) return RTERROR;
        host::Asking a{L"acedGetAngle", prompt, RSG_NONULL | RSG_NOZERO, host::kRequiresAngle};
        return host::ask(a, [&](const TypedReply& r, int flags) {
            if (auto v = host::numberOf(r)) {
                if (auto problem = host::rangeProblem(*v, flags)) return host::rejected(*problem);
                *result = host::typedAngle(*v);
                return host::accepted();
            }
            auto p = host::pointOf(r);
            if (!p) return host::otherKind();
            auto points = host::shownByPoints(pt, *p);
            if (!points) return host::rejected(host::kRequiresAngle);
            auto& [from, to] = *points;
            // Points show the angle itself; it is measured from ANGBASE.
            double direction = std::atan2(to[1] - from[1], to[0] - from[0]);
            *result = host::normalised(direction - host::realVariable(L"ANGBASE"));
            return host::accepted();
        });
    });
}

extern "C" int acedGetCorner(const ads_point pt, const ACHAR* prompt, ads_point result) {
    return host::guarded(__func__, RTERROR, [&] {
        if (!pt || !result) return RTERROR;
        host::Asking a{L"acedGetCorner", prompt, RSG_NONULL, host::kRequiresPoint};
        return host::ask(a, [&](const TypedReply& r, int) {
            auto p = host::pointOf(r);
            if (!p) return host::otherKind();
            std::memcpy(result, p->data(), sizeof(ads_point));
            return host::accepted();
        });
    });
}

extern "C" int acedGetKword(const ACHAR* prompt, ACHAR* result) {
    return host::guarded(__func__, RTERROR, [&] {
        if (!result) return RTERROR;
        result[0] = L'\0';
        std::wstring keywords = host::inputState().next.keywords;
        host::KeywordList list(keywords);
        host::Asking a{L"acedGetKword", prompt, RSG_NONULL, host::kRequiresKeyword};
        int status = host::ask(a, [&](const TypedReply& r, int flags) {
            std::wstring text(host::trimmed(host::textOf(r)));
            std::optional<std::wstring> keyword = list.match(text);
            if (!keyword && (flags & RSG_OTHER)) keyword = text;
            if (!keyword) return host::rejected(host::kRequiresKeyword);
            host::copyLimited(*keyword, host::kKeywordLimit, result);
            host::inputState().lastKeyword = *keyword;
            return host::accepted();
        });
        return status;
    });
}

// A reply longer than the 132 characters the result holds is cut and answers RTINPUTTRUNCATED.
extern "C" int acedGetString(int cronly, const ACHAR* prompt, ACHAR* result) {
    return host::guarded(__func__, RTERROR, [&] {
        if (!result) return RTERROR;
        result[0] = L'\0';
        if (host::dcl::rejectWhileDialogOpen(L"acedGetString")) return RTREJ;
        host::takeInputControl();  // acedGetString heeds neither bits nor keywords
        host::printPrompt(prompt, false);
        std::optional<TypedReply> reply = host::nextReply();
        if (!reply) {
            acutPrintf(L"*Cancel*\n");
            return RTCAN;
        }
        std::wstring text = host::textOf(*reply);
        // Without cronly a space ends the input as Enter does.
        if (!cronly) text = text.substr(0, text.find(L' '));
        host::copyLimited(text, host::kStringLimit, result);
        return text.size() > host::kStringLimit ? RTINPUTTRUNCATED : RTNORM;
    });
}

namespace host {

void queueTypedReply(TypedReply reply) { inputState().replies.push_back(std::move(reply)); }
size_t pendingTypedReplies() { return inputState().replies.size(); }

}  // namespace host
