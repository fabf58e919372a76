#include "host/db/database.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <limits>

#include "host/db/blob.h"
#include "host/db/dxf_reader.h"
#include "host/db/entmake_state.h"
#include "host/db/selection_sets.h"
#include "host/db/skeleton.h"
#include "host/text.h"

namespace host::db {
namespace {

// Serials are unique in the whole process, not per session: an entity or set name of one
// drawing is never taken for one of another, even one of an earlier session.
long nextSerial() {
    static std::atomic<long> serial{0x5A00};
    return ++serial;
}

bool equalsNoCaseUpper(std::wstring_view name, std::wstring_view upperName) {
    if (name.size() != upperName.size()) return false;
    for (size_t i = 0; i < name.size(); ++i) {
        wchar_t c = name[i];
        if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
        if (c != upperName[i]) return false;
    }
    return true;
}

}  // namespace

std::string handleText(uint64_t handle) {
    char buf[20];
    auto r = std::to_chars(buf, buf + sizeof buf, handle, 16);
    std::string s(buf, r.ptr);
    for (auto& c : s)
        if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
    return s;
}

bool parseHandle(std::string_view text, uint64_t& handle) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r'))
        text.remove_suffix(1);
    if (text.empty() || text.size() > 16) return false;
    auto r = std::from_chars(text.data(), text.data() + text.size(), handle, 16);
    return r.ec == std::errc() && r.ptr == text.data() + text.size();
}

Database::Database(Empty)
    : serial_(nextSerial()),
      selectionSets_(std::make_unique<SelectionSets>()),
      entMake_(std::make_unique<EntMakeState>()) {}

Database::Database() : Database(Empty{}) {
    std::wstring error;
    DxfReader reader(*this, L"new drawing");
    reader.read(newDrawingDxf(), error);  // the built-in drawing is valid
    format_.eol = "\r\n";
}

Database::~Database() = default;

std::unique_ptr<Database> Database::parse(std::string_view text, std::wstring_view source,
                                          std::wstring& error) {
    return parse(text, source, error, {});
}

std::unique_ptr<Database> Database::parse(std::string_view text, std::wstring_view source,
                                          std::wstring& error,
                                          const std::function<void(size_t)>& consumed) {
    std::unique_ptr<Database> db(new Database(Empty{}));
    DxfReader reader(*db, source);
    reader.onConsumed(consumed);
    if (!reader.read(text, error)) return nullptr;
    return db;
}

// --- names ----------------------------------------------------------------------------------

void Database::nameOf(uint32_t index, ads_name name) const {
    name[0] = serial_;
    name[1] = static_cast<long>(index) + 1;
}

uint32_t Database::indexOf(const ads_name name) const {
    if (!name || name[0] != serial_ || name[1] < 1) return kNone;
    auto index = static_cast<uint64_t>(name[1] - 1);
    return index < records_.size() ? static_cast<uint32_t>(index) : kNone;
}

void Database::nameOfHandle(uint64_t handle, ads_name name) const {
    uint32_t index = findHandle(handle);
    if (index != kNone) {
        nameOf(index, name);
        return;
    }
    // A reference to nothing: negative, so that it names no record but keeps its handle.
    name[0] = serial_;
    name[1] = -static_cast<long>(handle) - 1;
}

bool Database::handleOfName(const ads_name name, uint64_t& handle) const {
    if (!name || name[0] != serial_) return false;
    if (name[1] < 0) {
        handle = static_cast<uint64_t>(-(name[1] + 1));
        return true;
    }
    uint32_t index = indexOf(name);
    if (index == kNone) return false;
    handle = records_[index].handle;
    return true;
}

// --- records --------------------------------------------------------------------------------

uint32_t Database::typeId(std::string_view name) {
    auto it = typeIds_.find(std::string(name));
    if (it != typeIds_.end()) return it->second;
    auto id = static_cast<uint32_t>(typeNames_.size());
    typeNames_.emplace_back(name);
    typeIds_.emplace(std::string(name), id);
    return id;
}

uint32_t Database::addRecord(std::string_view type, std::string groups, RecordKind kind) {
    Record r;
    r.type = typeId(type);
    r.groups = std::move(groups);
    r.kind = kind;
    records_.push_back(std::move(r));
    auto index = static_cast<uint32_t>(records_.size() - 1);
    records_[index].main = kind == RecordKind::SubEntity ? kNone : index;
    return index;
}

namespace {

auto handleLess = [](const std::pair<uint64_t, uint32_t>& entry, uint64_t handle) { return entry.first < handle; };

}  // namespace

uint32_t Database::findHandle(uint64_t handle) const {
    if (handle == 0) return kNone;
    auto it = std::lower_bound(byHandle_.begin(), byHandle_.end(), handle, handleLess);
    return it == byHandle_.end() || it->first != handle ? kNone : it->second;
}

void Database::indexHandle(uint64_t handle, uint32_t index) {
    records_[index].handle = handle;
    noteHandle(handle);
    if (!handle) return;
    // New handles come from the seed, above all others: the index stays sorted by appending.
    if (byHandle_.empty() || byHandle_.back().first < handle) {
        byHandle_.emplace_back(handle, index);
        return;
    }
    auto it = std::lower_bound(byHandle_.begin(), byHandle_.end(), handle, handleLess);
    if (it != byHandle_.end() && it->first == handle) it->second = index;
    else byHandle_.insert(it, {handle, index});
}

uint64_t Database::newHandle() {
    constexpr uint64_t kLast = std::numeric_limits<uint64_t>::max();
    while (handseed_ != kLast && findHandle(handseed_) != kNone) ++handseed_;
    // A drawing whose seed reached the last handle (a seed of FFFFFFFFFFFFFFFF in the file)
    // goes on with the lowest handle not in use: handles never wrap round to 0.
    if (handseed_ == kLast && findHandle(kLast) != kNone) handseed_ = lowestFreeHandle();
    uint64_t h = handseed_;
    if (handseed_ != kLast) ++handseed_;
    return h;  // $HANDSEED is written from the seed when the drawing is saved
}

uint64_t Database::lowestFreeHandle() const {
    uint64_t candidate = 1;
    for (const auto& [handle, index] : byHandle_) {
        if (handle > candidate) break;
        if (handle == candidate) ++candidate;
    }
    return candidate;
}

void Database::noteHandle(uint64_t handle) {
    if (handle >= handseed_ && handle != std::numeric_limits<uint64_t>::max()) handseed_ = handle + 1;
    else if (handle >= handseed_) handseed_ = handle;
}

void Database::indexAll() {
    byHandle_.clear();
    byHandle_.reserve(records_.size());
    for (uint32_t i = 0; i < records_.size(); ++i)
        if (records_[i].handle) byHandle_.emplace_back(records_[i].handle, i);
    std::sort(byHandle_.begin(), byHandle_.end());
}

// --- header ---------------------------------------------------------------------------------

const HeaderVar* Database::headerVar(std::string_view name) const {
    for (const auto& v : header_)
        if (v.name == name) return &v;
    return nullptr;
}

HeaderVar& Database::setHeaderVar(std::string_view name, std::string groups) {
    for (auto& v : header_)
        if (v.name == name) {
            v.groups = std::move(groups);
            return v;
        }
    header_.push_back(HeaderVar{std::string(name), std::move(groups)});
    return header_.back();
}

std::string_view Database::headerValue(std::string_view name, int code) const {
    const HeaderVar* v = headerVar(name);
    std::string_view value;
    if (v && findGroup(v->groups, code, value)) return value;
    return {};
}

void Database::setVersion(std::string acadver, std::string_view codePage) {
    acadver_ = std::move(acadver);
    codec_ = TextCodec::forDrawing(acadver_, codePage);
}

// --- structure ------------------------------------------------------------------------------

Table* Database::table(std::string_view upperName) {
    for (auto& t : tables_)
        if (t.name == upperName) return &t;
    return nullptr;
}

const Table* Database::table(std::string_view upperName) const {
    for (const auto& t : tables_)
        if (t.name == upperName) return &t;
    return nullptr;
}

std::wstring Database::recordName(uint32_t index) const {
    std::string_view raw;
    if (!findGroup(records_[index].groups, 2, raw)) return {};
    return text(raw);
}

uint32_t Database::findEntry(std::string_view upperTable, std::wstring_view name) const {
    const Table* t = table(upperTable);
    if (!t) return kNone;
    std::wstring wanted = upperAscii(name);
    for (uint32_t index : t->entries) {
        if (records_[index].deleted) continue;
        if (equalsNoCaseUpper(recordName(index), wanted)) return index;
    }
    return kNone;
}

uint32_t Database::findBlock(std::wstring_view name) const {
    std::wstring wanted = upperAscii(name);
    for (uint32_t b = 0; b < blocks_.size(); ++b) {
        uint32_t begin = blocks_[b].begin;
        if (begin == kNone || records_[begin].deleted) continue;
        if (equalsNoCaseUpper(recordName(begin), wanted)) return b;
    }
    return kNone;
}

uint64_t Database::modelSpaceOwner() const {
    uint32_t index = findEntry("BLOCK_RECORD", L"*Model_Space");
    return index == kNone ? 0 : records_[index].handle;
}

uint64_t Database::blockRecordOf(uint32_t blockDef) const {
    if (blockDef >= blocks_.size()) return 0;
    uint32_t begin = blocks_[blockDef].begin;
    std::string_view owner;
    uint64_t handle = 0;
    if (findGroup(records_[begin].groups, 330, owner) && parseHandle(owner, handle)) return handle;
    uint32_t entry = findEntry("BLOCK_RECORD", recordName(begin));
    return entry == kNone ? 0 : records_[entry].handle;
}

}  // namespace host::db
