// Finding one cooler record in the device database by model name and row count.
#pragma once

#include <string>
#include <vector>

#include "coil/cooler_model.h"

namespace vrn2 {

inline constexpr wchar_t kMsgNoDeviceFile[] = L"没找到存储设备的文件SC.DAT";
inline constexpr wchar_t kMsgNoSuchCooler[] =
    L"数据文件SC.DAT没有存在此型号或此排数\n的表冷器,请增加他到此文件";
inline constexpr wchar_t kMsgBadRecordStructure[] = L"此型号给出的参数结构不对,\n请选择修改功能";
inline constexpr wchar_t kMsgNoContactPairs[] = L"表冷器的结触系数没给出";

// The header token of a record: "{name*rows}".
std::wstring coolerHeader(const std::wstring& name, int rows);

// Fills OUT with the record of NAME at ROWS from the database file at PATH. On a missing file,
// a missing record, a coefficient token without its key or fewer than two contact tokens it
// closes the file, sends the alert to ALERT and answers false.
bool lookupCoolerModel(const std::wstring& path, const std::wstring& name, int rows,
                       CoolerModel& out, const AlertSink& alert);

// The name and row count of a record header.
struct CoolerKey {
    std::wstring name;
    int rows = 0;
};

// Splits a header token "{name*rows}" (the last "*" separates the rows); false for any other
// token.
bool parseCoolerHeader(const std::wstring& token, CoolerKey& key);

// The headers of the database in file order; empty when the file cannot be read.
std::vector<CoolerKey> listCoolerRecords(const std::wstring& path);

// The distinct model names of the records, in the order of their first record.
std::vector<std::wstring> coolerModelNames(const std::vector<CoolerKey>& records);

}  // namespace vrn2
