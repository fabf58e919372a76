// Conversions between AutoLISP values and result-buffer lists, as the editor makes them.
#pragma once

#include <vector>

#include "adsdef.h"
#include "host/runtime/lisp_value.h"

namespace host {

// Arguments of an external function: integers as RTSHORT (RTLONG when they do not fit),
// reals as RTREAL, a list of two or three numbers as RTPOINT/RT3DPOINT, other lists between
// RTLB and RTLE with RTDOTE before a dotted tail, nil as RTNIL, T as RTT. Null when empty.
resbuf* argsToResbuf(const std::vector<lisp::ValuePtr>& args);
// One value as a chain of the same form (a symbol's value, a list returned).
resbuf* valueToResbuf(const lisp::ValuePtr& value);

// A whole chain read back as one value: a single element is itself, several elements form a
// list. Group-code nodes become dotted pairs (code . value), points (code x y z), and a -3
// node starts the extended data: (-3 ("APP" (1000 . "text") ...) ...).
lisp::ValuePtr resbufToValue(const resbuf* rb);
// A chain as the elements of a list, always a list (acedRetList).
lisp::ValuePtr resbufToList(const resbuf* rb);

// An entity list of dotted pairs (entmake, entmod, ssget filters) as group-code nodes.
// Returns null and sets ok=false when an element has no group code.
resbuf* entityListToResbuf(const lisp::ValuePtr& list, bool& ok);

}  // namespace host
