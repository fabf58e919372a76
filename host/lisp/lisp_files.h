// Files AutoLISP opens with open: their encodings, and where load and findfile look.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/runtime/lisp_value.h"

namespace host::lisp {

// The editor's encodings for open: the drawing's code page (the default), UTF-8, UTF-16.
enum class FileEncoding { CodePage, Utf8, Utf16 };
// "utf8", "utf-8", "utf16", "utf-16", "utf16le", "ansi" (any case); none for an unknown name.
std::optional<FileEncoding> encodingNamed(const std::wstring& name);

// Text of raw file bytes: a byte-order mark decides, else ENCODING.
std::wstring decodeFileText(const std::string& bytes, FileEncoding encoding);
std::string encodeFileText(const std::wstring& text, FileEncoding encoding);

// Writes TEXT to the open file V (a File value); false when V is not open for writing.
bool writeToLispFile(const ValuePtr& v, const std::wstring& text);

// The folders findfile and load search, in order: the folder of the file being loaded, the
// current folder, the installation root (_DRV), then each folder of the ACAD environment
// variable (separated by ';' or ':').
std::vector<std::wstring> searchFolders(const std::wstring& loadingFile, const std::wstring& root);
// The first existing file NAME names in FOLDERS (an absolute NAME is looked at alone).
std::optional<std::wstring> findInFolders(const std::wstring& name, const std::vector<std::wstring>& folders);

}  // namespace host::lisp
