// STYLE: makes or changes a text style and makes it current. After the name come the font
// file, the height (0: each text gives its own), the width factor, the obliquing angle, and
// whether text runs backwards and upside-down; fonts of the editor's own format (SHX) are
// also asked whether they run vertically. Enter keeps each value.
#include <cstdio>

#include "adscodes.h"
#include "host/commands/command_support.h"
#include "host/db/database.h"
#include "host/db/tables.h"
#include "host/runtime/host.h"
#include "host/text.h"

namespace host::cmd {
namespace {

using db::Group;
using db::GroupList;

struct StyleValues {
    std::wstring font = L"txt";
    std::wstring bigFont;
    double height = 0.0;
    double width = 1.0;
    double oblique = 0.0;  // degrees, as the file holds it
    long long flags = 0;   // 4: vertical
    long long generation = 0;  // 2: backwards, 4: upside down
    double lastHeight = 2.5;
};

StyleValues valuesOf(uint32_t entry) {
    StyleValues v;
    if (entry == db::kNone) return v;
    GroupList g;
    db::decodeGroups(database(), database().record(entry).groups, g, nullptr);
    if (const Group* x = db::findCode(g, 3)) v.font = x->text;
    if (const Group* x = db::findCode(g, 4)) v.bigFont = x->text;
    if (const Group* x = db::findCode(g, 40)) v.height = x->real;
    if (const Group* x = db::findCode(g, 41)) v.width = x->real;
    if (const Group* x = db::findCode(g, 50)) v.oblique = x->real;
    if (const Group* x = db::findCode(g, 70)) v.flags = x->integer;
    if (const Group* x = db::findCode(g, 71)) v.generation = x->integer;
    if (const Group* x = db::findCode(g, 42)) v.lastHeight = x->real;
    return v;
}

std::wstring format4(double v) {
    wchar_t buf[40];
    std::swprintf(buf, 40, L"%.4f", v);
    return buf;
}

bool isShx(const std::wstring& font) {
    std::wstring upper = upperAscii(font);
    auto dot = upper.rfind(L'.');
    return dot == std::wstring::npos || upper.substr(dot) == L".SHX";
}

bool askReal(CommandInput& in, const std::wstring& promptText, double& value, bool positive) {
    while (const CommandToken* t = ask(in, promptText)) {
        if (t->isEnter()) return true;
        double v;
        if (readReal(*t, v) && (!positive || v > 0)) {
            value = v;
            return true;
        }
        say(L"\nRequires numeric value.");
    }
    return false;
}

bool askYesNo(CommandInput& in, const std::wstring& question, long long& bits, long long bit) {
    bool on = bits & bit;
    while (const CommandToken* t = ask(in, question + (on ? L"<Yes>: " : L"<No>: "))) {
        if (t->isEnter()) return true;
        if (isKeyword(*t, {L"YES", L"Y"})) on = true;
        else if (isKeyword(*t, {L"NO", L"N"})) on = false;
        else {
            say(L"\nInvalid option keyword.");
            continue;
        }
        bits = on ? (bits | bit) : (bits & ~bit);
        return true;
    }
    return false;
}

GroupList fieldsOf(const std::wstring& name, const StyleValues& v) {
    return {db::stringGroup(2, name), db::intGroup(70, v.flags), db::realGroup(40, v.height),
            db::realGroup(41, v.width), db::realGroup(50, v.oblique), db::intGroup(71, v.generation),
            db::realGroup(42, v.lastHeight), db::stringGroup(3, v.font), db::stringGroup(4, v.bigFont)};
}

int styleCommand(CommandInput& in) {
    const SysVarValue* current = vars().find(L"TEXTSTYLE");
    std::wstring name = current ? current->text : L"Standard";
    const CommandToken* t = ask(in, L"\nEnter name of text style or [?] <" + name + L">: ");
    if (!t) return RTNORM;
    if (t->type == RTSTR && !t->isEnter()) name = t->text;
    if (!db::validSymbolName(name)) {
        say(L"\nInvalid text style name.");
        return RTERROR;
    }
    uint32_t entry = database().findEntry("STYLE", name);
    if (entry != db::kNone) name = database().recordName(entry);
    else say(L"\nNew style.");
    StyleValues v = valuesOf(entry);

    t = ask(in, L"\nSpecify full font name or font filename (TTF or SHX) <" + v.font + L">: ");
    if (!t) return RTNORM;
    if (t->type == RTSTR && !t->isEnter()) {
        v.font = t->text;
        if (v.font.find(L'.') == std::wstring::npos) v.font += L".shx";
    }
    if (!askReal(in, L"\nSpecify height of text or [Annotative] <" + format4(v.height) + L">: ", v.height, false) ||
        !askReal(in, L"\nSpecify width factor <" + format4(v.width) + L">: ", v.width, true) ||
        !askReal(in, L"\nSpecify obliquing angle <" + format4(v.oblique) + L">: ", v.oblique, false) ||
        !askYesNo(in, L"\nDisplay text backwards? [Yes/No] ", v.generation, 2) ||
        !askYesNo(in, L"\nDisplay text upside-down? [Yes/No] ", v.generation, 4))
        return RTNORM;
    if (isShx(v.font) && !askYesNo(in, L"\nVertical? ", v.flags, 4)) return RTNORM;

    GroupList fields = fieldsOf(name, v);
    if (entry == db::kNone) {
        db::addTableEntry(database(), "STYLE", fields);
    } else {
        db::editRecord(database(), entry, [&](GroupList& g) {
            for (const auto& f : fields) db::setGroup(g, f);
        });
    }
    vars().setString(L"TEXTSTYLE", name);
    say(L"\n\"" + name + L"\" is now the current text style.");
    return RTNORM;
}

CommandRegistration style(L"STYLE", styleCommand);
CommandRegistration dashStyle(L"-STYLE", styleCommand);

}  // namespace
}  // namespace host::cmd
