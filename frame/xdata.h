// Design data on drawing entities as extended data of a registered application: one string
// (a group 1000) or one list (a brace group) per application.
#pragma once

#include "adsdef.h"

namespace vrn2 {

enum class XdataKind { String = 0, List = 1 };

// Attaches MESSAGE (a string, a list starting at its RTLB, a 2D or a 3D point) to ENTITY
// under APPLICATION, replacing the application's string or brace group. Answers RTNORM when
// written and also after a reported failure that leaves the entity unchanged; RTERROR on
// argument errors and when the editor refuses the changed entity.
int attachXdata(const ads_name entity, const ACHAR* application, const resbuf* message);

// Reads the application's string (kind 0, as one RTSTR) or its first brace group (kind 1,
// as a list RTLB ... RTLE) into *result, which the caller releases. RTNORM when found, else
// RTERROR with *result null.
int readXdata(const ads_name entity, const ACHAR* application, int kind, resbuf** result);

// Application names must be shorter than this.
inline constexpr size_t kApplicationNameLimit = 32;

// Registers APPLICATION unless the APPID table has it; false when registering fails.
bool ensureApplicationRegistered(const ACHAR* application);

}  // namespace vrn2
