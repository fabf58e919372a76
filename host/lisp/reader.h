// Reads AutoLISP source text into forms.
#pragma once

#include <string>
#include <vector>

#include "host/runtime/lisp_value.h"

namespace host::lisp {

struct ReadResult {
    std::vector<ValuePtr> forms;
    std::vector<int> lines;  // the line each form starts on
    std::wstring error;  // the editor's wording, e.g. "malformed list on input"
    int errorLine = 0;
};

ReadResult readAll(std::wstring_view text);

}  // namespace host::lisp
