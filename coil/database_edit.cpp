#include "coil/database_edit.h"

#include <cstdio>

#include "coil/database_text.h"
#include "frame/file_handle.h"

namespace vrn2 {

const wchar_t* editMessage(EditOutcome outcome) {
    switch (outcome) {
        case EditOutcome::Added: return kMsgAdded;
        case EditOutcome::Modified: return kMsgModified;
        case EditOutcome::Deleted: return kMsgDeleted;
        case EditOutcome::CannotAppend: return kMsgCannotAppend;
        case EditOutcome::CannotCreateTemp: return kMsgCannotCreateTemp;
        case EditOutcome::NoRecord: return kMsgNoRecordToDelete;
        case EditOutcome::CannotDelete: return kMsgCannotDelete;
    }
    return L"";
}

EditOutcome saveCoolerRecord(const std::wstring& databasePath, const std::wstring& tempPath,
                             const CoolerModel& model, const std::vector<std::wstring>& entries) {
    const std::wstring record = formatCoolerRecord(model, entries);
    std::wstring text;
    RecordSpan span;
    const bool readable = readTextFile(databasePath, text);
    if (!readable && fileExists(databasePath.c_str())) return EditOutcome::CannotAppend;
    if (readable && findRecordSpan(text, model.name, model.rows, span)) {
        text.replace(span.begin, span.end - span.begin, record);
        return replaceDatabase(databasePath, tempPath, text) ? EditOutcome::Modified
                                                             : EditOutcome::CannotCreateTemp;
    }
    FileHandle file(databasePath.c_str(), L"a+");
    if (!file) return EditOutcome::CannotAppend;
    bool ok = std::fputws(record.c_str(), file.get()) >= 0;
    ok = file.close() && ok;
    return ok ? EditOutcome::Added : EditOutcome::CannotAppend;
}

EditOutcome deleteCoolerRecord(const std::wstring& databasePath, const std::wstring& tempPath,
                               const std::wstring& name, int rows) {
    std::wstring text;
    if (!readTextFile(databasePath, text)) return EditOutcome::CannotDelete;
    RecordSpan span;
    if (!findRecordSpan(text, name, rows, span)) return EditOutcome::NoRecord;
    text.erase(span.begin, span.end - span.begin);
    return replaceDatabase(databasePath, tempPath, text) ? EditOutcome::Deleted
                                                         : EditOutcome::CannotDelete;
}

}  // namespace vrn2
