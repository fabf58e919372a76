// COLOR: the colour of new objects (CECOLOR): a number 1 to 255, a colour name, BYLAYER or
// BYBLOCK; Enter keeps it.
#include "adscodes.h"
#include "host/commands/command_support.h"
#include "host/runtime/host.h"

namespace host::cmd {
namespace {

int colorCommand(CommandInput& in) {
    const SysVarValue* current = vars().find(L"CECOLOR");
    std::wstring shown = current ? current->text : L"BYLAYER";
    while (const CommandToken* t = ask(in, L"\nEnter default object color [Truecolor/COlorbook]<" + shown + L">: ")) {
        if (t->isEnter()) break;
        int colour;
        if (readColour(*t, colour, true)) {
            vars().setString(L"CECOLOR", colourText(colour));
            break;
        }
        say(L"\nInvalid color value.");
    }
    return RTNORM;
}

CommandRegistration color(L"COLOR", colorCommand);
CommandRegistration colour(L"COLOUR", colorCommand);

}  // namespace
}  // namespace host::cmd
