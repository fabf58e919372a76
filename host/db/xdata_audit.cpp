// Extended data another program wrote is audited on reading, as AUDIT repairs it: an
// application that is not registered is registered (ACAD is in every drawing), the data of one
// whose name is no name, that holds groups extended data cannot hold or whose braces do not
// balance is removed, and so is all the data of an entity past its 16383 bytes of room. Each
// repair is a warning; sound data is kept byte for byte.
#include <algorithm>

#include "host/db/api_support.h"
#include "host/db/blob.h"
#include "host/db/dxf_reader.h"
#include "host/db/group_values.h"
#include "host/db/tables.h"
#include "host/db/xdata.h"
#include "host/text.h"

namespace host::db {
namespace {

bool hasXdata(const std::string& blob) {
    BlobCursor cursor(blob);
    RawGroup g;
    while (cursor.next(g))
        if (g.code == 1001) return true;
    return false;
}

std::wstring fault(short err) {
    switch (err) {
    case kErrBadAppId: return L"the application's name is no name or comes twice";
    case kErrBadXdataNesting: return L"its braces do not balance";
    default: return L"it holds a group extended data cannot hold";
    }
}

}  // namespace

static bool isEntity(const Record& r) { return r.kind == RecordKind::Entity || r.kind == RecordKind::SubEntity; }

void DxfReader::auditXdata() {
    std::vector<uint32_t> withXdata;
    for (uint32_t i = 0; i < db_.records_.size(); ++i)
        if (isEntity(db_.records_[i]) && hasXdata(db_.records_[i].groups)) withXdata.push_back(i);
    if (withXdata.empty()) return;
    registerApplications(withXdata);
    for (uint32_t i : withXdata) auditXdataOf(db_.records_[i]);
}

void DxfReader::registerApplications(const std::vector<uint32_t>& withXdata) {
    std::vector<std::wstring> missing;
    for (uint32_t i : withXdata) {
        BlobCursor cursor(db_.records_[i].groups);
        RawGroup g;
        while (cursor.next(g)) {
            if (g.code != 1001) continue;
            std::wstring app = db_.text(trimBlanks(g.value));
            if (equalsNoCase(app, L"ACAD") || !validSymbolName(app) || db_.findEntry("APPID", app) != kNone) continue;
            if (std::none_of(missing.begin(), missing.end(), [&](const std::wstring& m) { return equalsNoCase(m, app); }))
                missing.push_back(app);
        }
    }
    for (const auto& app : missing) {
        addTableEntry(db_, "APPID", {stringGroup(2, app), intGroup(70, 0)});
        db_.warnings_.push_back(L"the application " + app + L" of extended data was not registered; it is now");
    }
}

bool DxfReader::auditXdataOf(Record& r) {
    GroupList data, xdata;
    decodeGroups(db_, r.groups, data, &xdata);
    std::vector<XdataBlock> blocks = splitXdata(xdata), kept;
    std::wstring where = L" on the " + fromUtf8(db_.typeName(r)) + L" with handle " + fromUtf8(handleText(r.handle));
    for (const auto& block : blocks) {
        bool twice = std::any_of(kept.begin(), kept.end(), [&](const XdataBlock& k) { return equalsNoCase(k.app, block.app); });
        bool acad = equalsNoCase(block.app, L"ACAD");
        short err = twice ? static_cast<short>(kErrBadAppId) : checkXdataBlock(db_, block, acad);
        if (!err) {
            kept.push_back(block);
            continue;
        }
        db_.warnings_.push_back(L"the extended data of application " + block.app + where + L" was removed: " +
                                fault(err));
    }
    if (xdataSize(kept) > kXdataRoom) {
        db_.warnings_.push_back(L"the extended data" + where + L" was removed: it takes more than " +
                                std::to_wstring(kXdataRoom) + L" bytes");
        kept.clear();
    }
    if (kept.size() == blocks.size()) return false;
    GroupList sound;
    joinXdata(kept, sound);
    std::string blob;
    encodeGroups(db_, data, blob);
    encodeGroups(db_, sound, blob);
    r.groups = std::move(blob);
    return true;
}

}  // namespace host::db
