// The wide-name file functions of the platform's C runtime. Paths may use "\" separators.
#pragma once

#include <stdio.h>

#ifdef __cplusplus
extern "C" {
#endif

FILE* _wfopen(const wchar_t* filename, const wchar_t* mode);
int _wremove(const wchar_t* filename);
int _wunlink(const wchar_t* filename);
int _wrename(const wchar_t* oldname, const wchar_t* newname);

#ifdef __cplusplus
}
#endif
