// Editing the device database as text: the text of one record as the editor writes it, and
// finding, removing or replacing one record while every other byte stays as it was.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "coil/cooler_model.h"

namespace vrn2 {

// An entry of the editor's contact-coefficient list: "Vy=%.2lf   E2=%.4lf".
std::wstring contactListEntry(double Vy, double E2);

// The record as appended to the database: the header line, the coefficient lines and one
// line per list entry.
std::wstring formatCoolerRecord(const CoolerModel& model, const std::vector<std::wstring>& entries);

// Where a record lies in the database text: from the line break before its header token (or
// the token itself at the start of the text) to the same place of the next record, or the end.
struct RecordSpan {
    size_t begin = 0;
    size_t end = 0;
};

// Finds the record NAME*ROWS; false when the text has none.
bool findRecordSpan(const std::wstring& text, const std::wstring& name, int rows, RecordSpan& span);

// Reads a whole UTF-8 text file; false when it cannot be opened or read to its end.
bool readTextFile(const std::wstring& path, std::wstring& text);

// Writes TEXT to a new file at PATH; false, with the file removed, when any write fails.
bool writeTextFile(const std::wstring& path, const std::wstring& text);

// Replaces the database at PATH by TEXT: writes it whole to TEMPPATH first and renames it over
// the database only when complete, so that a failure leaves the database as it was.
bool replaceDatabase(const std::wstring& path, const std::wstring& tempPath, const std::wstring& text);

}  // namespace vrn2
