// Adding, replacing and deleting one record of the device database file. Changes of existing
// records go through a temporary file that replaces the database only once it is complete.
#pragma once

#include <string>
#include <vector>

#include "coil/cooler_model.h"

namespace vrn2 {

inline constexpr wchar_t kMsgCannotAppend[] = L"不能增加设备到文件SC.DAT中";
inline constexpr wchar_t kMsgAdded[] = L"\n增加完毕.";
inline constexpr wchar_t kMsgCannotCreateTemp[] = L"不能创建临时文件.";
inline constexpr wchar_t kMsgModified[] = L"\n修改完毕.";
inline constexpr wchar_t kMsgNoRecordToDelete[] = L"此型号的设备不存在,无法删除.";
inline constexpr wchar_t kMsgCannotDelete[] = L"不能删除此设备.";
inline constexpr wchar_t kMsgDeleted[] = L"\n删除完毕.";

// The working copy beside the database.
inline constexpr wchar_t kDatabaseTempName[] = L"@sctemp.acc";

enum class EditOutcome {
    Added,             // appended as a new record
    Modified,          // an existing record replaced
    Deleted,
    CannotAppend,      // the database could not be opened for appending
    CannotCreateTemp,  // the working copy could not be written, or the database not read
    NoRecord,          // nothing to delete
    CannotDelete,      // the database could not be read or replaced
};

// The message the editor shows for OUTCOME.
const wchar_t* editMessage(EditOutcome outcome);

// Appends MODEL with its list ENTRIES when the database has no record of its name and rows;
// otherwise rewrites the database with that record replaced and every other byte kept.
EditOutcome saveCoolerRecord(const std::wstring& databasePath, const std::wstring& tempPath,
                             const CoolerModel& model, const std::vector<std::wstring>& entries);

// Rewrites the database without the record NAME*ROWS.
EditOutcome deleteCoolerRecord(const std::wstring& databasePath, const std::wstring& tempPath,
                               const std::wstring& name, int rows);

}  // namespace vrn2
