// The suite's installation root from the AutoLISP symbol _DRV, and file names under it.
#pragma once

#include <string>

namespace vrn2 {

// Reads _DRV into the module-wide root. When it is missing, empty or not a string, shows the
// alert "找不到暖通软件目录!" and answers false; the handler then does nothing else.
bool loadInstallRoot();
// The root as last read (with whatever separator _DRV ends in).
const std::wstring& installRoot();
// Root plus a relative name such as "dwglib\\gscal.dcl", appended directly with no separator.
std::wstring suitePath(const wchar_t* relative);

}  // namespace vrn2
