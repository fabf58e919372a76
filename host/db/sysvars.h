// System variables of one document, with the editor's defaults.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "adsdef.h"

namespace host {

struct SysVarValue {
    int type = 0;  // RTSHORT, RTREAL, RTSTR, RTPOINT or RT3DPOINT
    short integer = 0;
    double real = 0.0;
    double point[3] = {0, 0, 0};
    std::wstring text;
    bool readOnly = false;
};

class SysVars {
public:
    SysVars();  // the editor's defaults for a new metric drawing
    // Null when the variable is unknown. Names are compared without regard to case.
    const SysVarValue* find(std::wstring_view name) const;
    // RTNORM, or RTERROR for an unknown or read-only variable or a value of the wrong type.
    int set(std::wstring_view name, const resbuf& value);
    // Host-side writes, read-only variables included (view changes, the document's name).
    void setShort(std::wstring_view name, short v, bool readOnly = false);
    void setReal(std::wstring_view name, double v, bool readOnly = false);
    void setString(std::wstring_view name, std::wstring v, bool readOnly = false);
    void setPoint(std::wstring_view name, const double p[3], bool twoD, bool readOnly = false);

private:
    std::map<std::wstring, SysVarValue> vars_;
};

}  // namespace host
