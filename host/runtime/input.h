// Answers to the module's interactive input, queued by the console or by tests and taken in
// order by whichever function asks: entity picks (acedEntSel, acedSSGet), point picks
// (acedGetPoint) and typed replies (acedGetReal, acedGetInt, acedGetDist, acedGetAngle,
// acedGetKword, acedGetString, acedGetCorner). A function that finds its queue empty answers
// as a cancelled request: RTCAN.
#pragma once

#include <string>

#include "adsdef.h"

namespace host {

void queueEntityPick(const ads_name ent, const ads_point pt);
void queuePointPick(const ads_point pt);
// Takes the next queued entity pick without a prompt; false when none is queued.
bool takeEntityPick(ads_name ent, ads_point pt);

// One reply typed at a prompt: a bare Enter, a text, a number, or a point.
struct TypedReply {
    enum class Kind { Enter, Text, Integer, Real, Point } kind = Kind::Enter;
    std::wstring text;
    long long integer = 0;
    double real = 0.0;
    double point[3] = {0, 0, 0};
};
void queueTypedReply(TypedReply reply);
// Replies queued and not taken yet (the console warns about them at the end of a run).
size_t pendingTypedReplies();
// Picks queued and not taken yet.
size_t pendingEntityPicks();
size_t pendingPointPicks();

}  // namespace host
