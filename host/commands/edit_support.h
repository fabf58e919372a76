// What the editing commands (MOVE, COPY, ROTATE, SCALE, MIRROR, OFFSET) share: the selected
// objects read with their parts, changed in place or copied, and the answers their prompts
// take (points, numbers, angles, option keywords), re-asked when they do not fit.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "host/commands/command_support.h"
#include "host/commands/entity_transform.h"

namespace host::cmd {

// An object and its parts (the ATTRIBs of an INSERT, the VERTEXes and SEQEND of a POLYLINE),
// with their entity lists and extended data.
struct EditedObject {
    std::vector<Name> names;
    std::vector<RbPtr> lists;
    std::wstring type;
    std::vector<resbuf*> rawLists() const;
};

bool readObject(const Name& n, EditedObject& out);
// The changed lists written back (acdbEntMod), the object keeping its handle.
int writeBack(const EditedObject& o);
// A new object from the lists: new handles, the same properties and extended data. Its name
// goes to made.
int writeCopy(const EditedObject& o, Name& made);

// Maps the objects, in place or as copies (whose names go to made). Objects of kinds that
// cannot be mapped are left as they are and counted in a message. RTNORM when every object
// could be mapped or at least one was; RTERROR when none could.
int transformObjects(const std::vector<Name>& objects, const Transform& t, bool copy, std::vector<Name>* made = nullptr);

// A line of the command's settings, shown like its prompts only when CMDECHO is on.
void inform(const std::wstring& text);

// MIRRTEXT: whether mirrored texts are written backwards.
bool mirrorText();

struct Option {
    const wchar_t* full;
    const wchar_t* abbreviation;
};
// The index of the option an answer names, or -1.
int optionOf(const CommandToken& t, std::initializer_list<Option> options);

// What a prompt got: a value, Enter, an option (its index in option), or nothing (the input
// ended: the command is cancelled).
enum class Reply { Value, Enter, Option, Cancel };

// A point, Enter or one of the options; other answers print "Invalid point." and ask again.
Reply askPoint(CommandInput& in, const std::wstring& promptText, double p[3], std::initializer_list<Option> options,
               int& option);
// A number, a point (its distance from base, when base is given), Enter or an option; other
// answers print the editor's message and ask again. positive: the number must be above 0.
Reply askNumber(CommandInput& in, const std::wstring& promptText, double& v, const double* base, bool positive,
                std::initializer_list<Option> options, int& option);
// An angle in the current angle units (ANGBASE, ANGDIR), or a point (the direction from base
// to it), as radians of the world; Enter or an option. A direction is measured from ANGBASE;
// an amount of turning (direction false) is not.
Reply askAngle(CommandInput& in, const std::wstring& promptText, const double base[3], bool direction,
               double& radians, std::initializer_list<Option> options, int& option);

// "Specify displacement <0.0000, 0.0000, 0.0000>:" of MOVE and COPY; Enter is no move.
Reply askDisplacement(CommandInput& in, double d[3]);
// The move from base to a second point, or (Enter) the base point taken as the move.
Reply askSecondPoint(CommandInput& in, const std::wstring& promptText, const double base[3], double d[3],
                     std::initializer_list<Option> options, int& option);

// The value prompts of ROTATE and SCALE, whose options are Copy and Reference: asks until an
// answer is not Copy (which makes the command act on copies, said with copying). Answers
// Value, Enter, Option (Reference) or Cancel.
Reply askWithCopy(const std::function<Reply(int& option)>& askValue, const wchar_t* copying, bool& copy);

// The text the command line shows for a length: "1.0000".
std::wstring lengthText(double v);

}  // namespace host::cmd
