// What the host commands share: prompts, reading points, numbers, colours and keywords from
// the command input as the editor's command line reads them, the current properties of new
// entities, and small entity helpers over the interface functions.
#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "adsdef.h"
#include "host/db/resbuf.h"
#include "host/runtime/commands.h"

namespace host {
class SysVars;
namespace db {
class Database;
}
}  // namespace host

namespace host::cmd {

using Name = std::array<long, 2>;

SysVars& vars();
db::Database& database();

// A prompt, shown on the command line when CMDECHO is on; the next input answers it (null
// when the input has ended).
const CommandToken* ask(CommandInput& in, std::wstring_view promptText);
// A message the command line always shows.
void say(std::wstring_view text);

// The keyword a string answer gives: upper-case, without the "_" of language-neutral input.
std::wstring keyword(const CommandToken& t);
// Whether the answer is one of the keywords, each given as its full form and abbreviation
// ("Make", "M").
bool isKeyword(const CommandToken& t, std::initializer_list<const wchar_t*> forms);

// A point answer in world coordinates: a point, "x,y[,z]", "@dx,dy[,dz]" or "@dist<angle"
// relative to the last point. Updates LASTPOINT.
bool readPoint(const CommandToken& t, double world[3]);
// A number answer: a real, an integer or its text.
bool readReal(const CommandToken& t, double& v);
// A colour answer: 1 to 255, a colour name, and when allowed BYLAYER (256) and BYBLOCK (0).
bool readColour(const CommandToken& t, int& colour, bool byAllowed);
// The text of a colour for the CECOLOR variable.
std::wstring colourText(int colour);
// The colour CECOLOR gives new entities (256 by layer).
int currentColour();

// Degrees of the current angle units to radians, and back.
double toRadians(double degrees);

// Appends the current layer, colour, linetype and thickness to an entity list that has
// none of them yet, makes the entity and answers acdbEntMake's status.
int makeWithCurrentProperties(resbuf* list);
// The entity list of an entity, owned.
RbPtr entityList(const Name& e, bool withXdata = false);
// A copy of an entity list for acdbEntMake of a new entity: without the name, handle, owner,
// subclass markers, reactors and extension dictionary of the original, nor the groups of the
// codes in ALSO dropped (those the caller gives anew); extended data kept whole.
RbPtr copyForMaking(const resbuf* list, const std::vector<int>& alsoDropped = {});
// The entities made while it lives are deleted again when it goes, unless keep() was called:
// a command that makes several entities and changes others leaves all or nothing.
class MadeUntilKept {
public:
    MadeUntilKept();
    ~MadeUntilKept();
    MadeUntilKept(const MadeUntilKept&) = delete;
    MadeUntilKept& operator=(const MadeUntilKept&) = delete;
    void keep() { kept_ = true; }

private:
    Name last_{};
    bool hadEntities_ = false, kept_ = false;
};
// Makes the entities of the lists in order, all or none: when one cannot be made, those made
// before it are deleted again and its acdbEntMake status is answered.
int makeAllOrNone(const std::vector<RbPtr>& lists);
const resbuf* findGroup(const resbuf* list, int code, int occurrence = 0);

}  // namespace host::cmd
