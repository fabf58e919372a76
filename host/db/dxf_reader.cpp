#include "host/db/dxf_reader.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <unordered_set>

#include "host/db/blob.h"
#include "host/db/groupcodes.h"
#include "host/text.h"

namespace host::db {
namespace {

std::string_view numberText(std::string_view s) {
    s = trimBlanks(s);
    if (!s.empty() && s.front() == '+') s.remove_prefix(1);
    return s;
}

// A finite number: "nan" and "inf" are not coordinates.
bool parseReal(std::string_view s, double& v) {
    s = numberText(s);
    if (s.empty()) return false;
    auto r = std::from_chars(s.data(), s.data() + s.size(), v);
    return r.ec == std::errc() && r.ptr == s.data() + s.size() && std::isfinite(v);
}

// A whole number within [lowest, highest]; some writers put "1.0" where an integer belongs.
bool parseInteger(std::string_view s, double lowest, double highest) {
    s = numberText(s);
    if (s.empty()) return false;
    long long v;
    auto r = std::from_chars(s.data(), s.data() + s.size(), v);
    if (r.ec == std::errc() && r.ptr == s.data() + s.size())
        return static_cast<double>(v) >= lowest && static_cast<double>(v) <= highest;
    double d;
    return parseReal(s, d) && d == std::trunc(d) && d >= lowest && d <= highest;
}

// The values an integer group holds: 16 bits, 64 bits for 160-169, else 32 bits (written
// unsigned by some programs).
void integerRange(int code, double& lowest, double& highest) {
    if (groupType(code) == GroupType::Short) {
        lowest = -32768.0;
        highest = 32767.0;
    } else if (code >= 160 && code <= 169) {
        lowest = -9223372036854775808.0;
        highest = 9223372036854774784.0;  // the largest double below 2^63
    } else {
        lowest = -2147483648.0;
        highest = 4294967295.0;
    }
}

std::wstring quoted(std::string_view raw) {
    std::string shown(raw.substr(0, 60));
    return L"\"" + fromUtf8(shown) + L"\"";
}

SectionKind sectionKind(std::string_view name) {
    if (name == "HEADER") return SectionKind::Header;
    if (name == "CLASSES") return SectionKind::Classes;
    if (name == "TABLES") return SectionKind::Tables;
    if (name == "BLOCKS") return SectionKind::Blocks;
    if (name == "ENTITIES") return SectionKind::Entities;
    if (name == "OBJECTS") return SectionKind::Objects;
    return SectionKind::Other;
}

std::string upper(std::string_view s) {
    std::string out(s);
    for (auto& c : out)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return out;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

bool DxfReader::fail(size_t line, const std::wstring& what) {
    if (error_ && error_->empty()) *error_ = source_ + L", line " + std::to_wstring(line) + L": " + what;
    return false;
}

bool DxfReader::checkValue(const Group& g) {
    switch (groupType(g.code)) {
    case GroupType::Real:
    case GroupType::Point: {
        double v;
        if (parseReal(g.value, v)) return true;
        break;
    }
    case GroupType::Short:
    case GroupType::Long: {
        double lowest, highest;
        integerRange(g.code, lowest, highest);
        if (parseInteger(g.value, lowest, highest)) return true;
        return fail(g.line + 1, L"group code " + std::to_wstring(g.code) + L" needs a whole number from " +
                                    std::to_wstring(static_cast<long long>(lowest)) + L" to " +
                                    std::to_wstring(static_cast<long long>(highest)) + L", found " + quoted(g.value));
    }
    default: return true;
    }
    return fail(g.line + 1, L"group code " + std::to_wstring(g.code) + L" needs a number, found " +
                                quoted(g.value));
}

bool DxfReader::next(Group& g) {
    if (hasPending_) {
        g = pending_;
        hasPending_ = false;
        return true;
    }
    auto nextLine = [this](std::string_view& line) {
        if (pos_ >= text_.size()) return false;
        const char* start = text_.data() + pos_;
        const void* nl = std::memchr(start, '\n', text_.size() - pos_);
        size_t len = nl ? static_cast<size_t>(static_cast<const char*>(nl) - start) : text_.size() - pos_;
        line = std::string_view(start, len);
        pos_ += len + (nl ? 1 : 0);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        ++line_;
        return true;
    };
    constexpr size_t kReportStep = 8 << 20;
    if (consumed_ && pos_ >= reported_ + kReportStep) {
        reported_ = pos_;
        consumed_(pos_);
    }
    std::string_view codeLine;
    if (!nextLine(codeLine)) return false;
    size_t codeLineNo = line_;
    std::string_view digits = trimBlanks(codeLine);
    int code = 0;
    auto r = std::from_chars(digits.data(), digits.data() + digits.size(), code);
    if (digits.empty() || r.ec != std::errc() || r.ptr != digits.data() + digits.size() ||
        code < -32768 || code > 32767)
        return fail(codeLineNo, L"expected a group code, found " + quoted(codeLine));
    if (firstCode_) {
        firstCode_ = false;
        db_.format().padCodes = codeLine.size() > digits.size() || code >= 100;
    }
    std::string_view value;
    if (!nextLine(value))
        return fail(codeLineNo, L"the file ends after group code " + std::to_wstring(code) +
                                    L" without its value; it may be truncated");
    g.code = code;
    g.value = value;
    g.line = codeLineNo;
    return checkValue(g);
}

bool DxfReader::read(std::string_view text, std::wstring& error) {
    error_ = &error;
    error.clear();
    if (text.substr(0, 18) == "AutoCAD Binary DXF")
        return fail(1, L"this is a binary DXF file; only ASCII DXF drawings can be read "
                       L"(save it as ASCII DXF)");
    if (text.size() >= 6 && text.substr(0, 3) == "AC1" && isDigit(text[3]) && isDigit(text[4]) &&
        isDigit(text[5]))
        return fail(1, L"this is a DWG drawing; only ASCII DXF drawings can be read "
                       L"(save it as DXF)");
    if (text.substr(0, 3) == "\xEF\xBB\xBF") {
        db_.format().bom = true;
        text.remove_prefix(3);
    }
    if (trimBlanks(text).empty()) return fail(1, L"the file is empty");
    text_ = text;
    const char* nl = static_cast<const char*>(std::memchr(text.data(), '\n', text.size()));
    db_.format().eol = (nl && nl > text.data() && nl[-1] == '\r') ? "\r\n" : "\n";

    Group g;
    bool sawEof = false;
    while (error.empty() && next(g)) {
        std::string_view word = trimBlanks(g.value);
        if (g.code == 999) {
            db_.comments().emplace_back(g.value);
        } else if (g.code == 0 && word == "SECTION") {
            if (!readSection(g)) return false;
        } else if (g.code == 0 && word == "EOF") {
            sawEof = true;
            break;
        } else {
            return fail(g.line, L"expected \"0 SECTION\" or \"0 EOF\", found group " +
                                    std::to_wstring(g.code) + L" " + quoted(g.value));
        }
    }
    if (!error.empty()) return false;
    if (!sawEof) return fail(line_, L"the file ends without \"0 EOF\"; it may be truncated");
    return finish();
}

bool DxfReader::readSection(const Group& start) {
    Group g;
    if (!next(g) || g.code != 2)
        return error_->empty() ? fail(start.line, L"SECTION without a name (group 2)") : false;
    Section section;
    section.name = std::string(trimBlanks(g.value));
    section.kind = sectionKind(section.name);
    if (section.kind != SectionKind::Header) {
        // Some sections (THUMBNAILIMAGE) hold groups of their own before any record.
        while (next(g) && g.code != 0) appendGroup(section.head, g.code, g.value);
        if (!error_->empty()) return false;
        if (g.code == 0) pushBack(g);
    }
    bool ok = false;
    Group end;
    switch (section.kind) {
    case SectionKind::Header: ok = readHeader(); break;
    case SectionKind::Tables: ok = readTables(); break;
    case SectionKind::Blocks: ok = readBlocks(); break;
    case SectionKind::Entities: ok = readEntityList(db_.entities_, kNone, "ENDSEC", end); break;
    default: ok = readRecords(section); break;
    }
    if (!ok) {
        if (error_->empty())
            fail(line_, L"the " + fromUtf8(section.name) +
                            L" section (line " + std::to_wstring(start.line) +
                            L") is not closed by ENDSEC; the file may be truncated");
        return false;
    }
    // A second HEADER, TABLES, BLOCKS or ENTITIES section adds its content to the first: the
    // drawing is written with one of each, or every save would double that content.
    if (section.kind == SectionKind::Other || section.kind == SectionKind::Classes ||
        section.kind == SectionKind::Objects || !hasSection(section.kind))
        db_.sections_.push_back(std::move(section));
    return true;
}

bool DxfReader::hasSection(SectionKind kind) const {
    for (const auto& s : db_.sections_)
        if (s.kind == kind) return true;
    return false;
}

bool DxfReader::readHeader() {
    Group g;
    size_t current = kNone;
    while (next(g)) {
        if (g.code == 0) {
            if (trimBlanks(g.value) == "ENDSEC") return true;
            return fail(g.line, L"unexpected " + quoted(g.value) + L" in the HEADER section");
        }
        if (g.code == 9) {
            db_.header_.push_back(HeaderVar{std::string(trimBlanks(g.value)), {}});
            current = db_.header_.size() - 1;
            continue;
        }
        if (current == kNone)
            return fail(g.line, L"group " + std::to_wstring(g.code) +
                                    L" before the first variable of the HEADER section");
        appendGroup(db_.header_[current].groups, g.code, g.value);
    }
    return false;
}

bool DxfReader::readRecord(const Group& start, RecordKind kind, uint32_t& index) {
    std::string_view type = trimBlanks(start.value);
    std::string groups;
    uint64_t handle = 0;
    bool haveHandle = false;
    int handleCode = type == "DIMSTYLE" ? 105 : 5;
    Group g;
    while (next(g)) {
        if (g.code == 0) {
            pushBack(g);
            break;
        }
        appendGroup(groups, g.code, g.value);
        if (!haveHandle && (g.code == handleCode || g.code == 5))
            haveHandle = parseHandle(g.value, handle) && handle != 0;
    }
    if (!error_->empty()) return false;
    index = db_.addRecord(type, std::move(groups), kind);
    if (haveHandle) db_.records_[index].handle = handle;
    else missingHandles_.emplace_back(index, start.line);
    return true;
}

bool DxfReader::readTables() {
    Group g;
    while (next(g)) {
        std::string_view word = trimBlanks(g.value);
        if (g.code == 0 && word == "ENDSEC") return true;
        if (g.code != 0 || word != "TABLE")
            return fail(g.line, L"expected \"0 TABLE\" or \"0 ENDSEC\" in the TABLES section, found " +
                                    quoted(g.value));
        size_t tableLine = g.line;
        Table table;
        std::vector<size_t> entryLines;
        if (!readRecord(g, RecordKind::TableHead, table.head)) return false;
        std::string_view name;
        if (findGroup(db_.records_[table.head].groups, 2, name)) table.name = upper(trimBlanks(name));
        bool closed = false;
        while (next(g)) {
            std::string_view type = trimBlanks(g.value);
            if (type == "ENDTAB") {
                if (!readRecord(g, RecordKind::TableEnd, table.end)) return false;
                closed = true;
                break;
            }
            if (type == "ENDSEC" || type == "EOF" || type == "TABLE")
                return fail(g.line, L"the table at line " + std::to_wstring(tableLine) +
                                        L" is not closed by ENDTAB");
            uint32_t entry;
            size_t entryLine = g.line;
            if (!readRecord(g, RecordKind::TableEntry, entry)) return false;
            table.entries.push_back(entry);
            entryLines.push_back(entryLine);
        }
        if (!closed) return false;
        addTable(std::move(table), entryLines);
    }
    return false;
}

// A table given again (in a second TABLES section, or twice in one) adds its entries to the
// first: the drawing is written with one table of each name, whose entries are all found by
// name. An entry whose name the table holds already is left out with a warning; viewports are
// the exception, as several of one name make a tiled configuration.
void DxfReader::addTable(Table table, const std::vector<size_t>& entryLines) {
    Table* first = table.name.empty() ? nullptr : db_.table(table.name);
    if (!first) {
        db_.tables_.push_back(std::move(table));
        return;
    }
    auto drop = [this](uint32_t index) {
        if (index == kNone) return;
        db_.records_[index].deleted = true;
        db_.records_[index].handle = 0;
    };
    uint64_t oldOwner = db_.records_[table.head].handle;
    uint64_t owner = db_.records_[first->head].handle;
    std::unordered_set<std::string> names;
    for (uint32_t index : first->entries) names.insert(upper(trimBlanks(entryName(index))));
    for (size_t i = 0; i < table.entries.size(); ++i) {
        uint32_t index = table.entries[i];
        std::string name = upper(trimBlanks(entryName(index)));
        if (table.name != "VPORT" && !names.insert(name).second) {
            drop(index);
            db_.warnings_.push_back(L"the " + fromUtf8(table.name) + L" table names " + fromUtf8(name) +
                                    L" twice; the entry at line " + std::to_wstring(entryLines[i]) +
                                    L" was left out");
            continue;
        }
        if (owner && oldOwner) replaceOwner(index, oldOwner, owner);
        first->entries.push_back(index);
    }
    drop(table.head);
    drop(table.end);
}

std::string_view DxfReader::entryName(uint32_t index) const {
    std::string_view name;
    findGroup(db_.records_[index].groups, 2, name);
    return name;
}

// The entry's owner group naming the table it was read in names the table it joins instead.
void DxfReader::replaceOwner(uint32_t index, uint64_t from, uint64_t to) {
    Record& r = db_.records_[index];
    std::string newOwner = handleText(to);
    std::string groups;
    BlobCursor c(r.groups);
    RawGroup g;
    bool replaced = false;
    while (c.next(g)) {
        uint64_t h = 0;
        bool owner = !replaced && g.code == 330 && parseHandle(g.value, h) && h == from;
        replaced |= owner;
        appendGroup(groups, g.code, owner ? std::string_view(newOwner) : g.value);
    }
    r.groups = std::move(groups);
}

bool DxfReader::readBlocks() {
    Group g;
    while (next(g)) {
        std::string_view word = trimBlanks(g.value);
        if (g.code == 0 && word == "ENDSEC") return true;
        if (g.code != 0 || word != "BLOCK")
            return fail(g.line, L"expected \"0 BLOCK\" or \"0 ENDSEC\" in the BLOCKS section, found " +
                                    quoted(g.value));
        size_t blockLine = g.line;
        auto b = static_cast<uint32_t>(db_.blocks_.size());
        db_.blocks_.emplace_back();
        uint32_t begin;
        if (!readRecord(g, RecordKind::BlockBegin, begin)) return false;
        db_.records_[begin].block = b;
        db_.blocks_[b].begin = begin;
        Group end;
        std::vector<uint32_t> entities;
        if (!readEntityList(entities, b, "ENDBLK", end)) {
            if (error_->empty())
                fail(line_, L"the BLOCK at line " + std::to_wstring(blockLine) + L" has no ENDBLK");
            return false;
        }
        db_.blocks_[b].entities = std::move(entities);
        uint32_t endIndex;
        if (!readRecord(end, RecordKind::BlockEnd, endIndex)) return false;
        db_.records_[endIndex].block = b;
        db_.blocks_[b].end = endIndex;
    }
    return false;
}

bool DxfReader::readEntityList(std::vector<uint32_t>& into, uint32_t block, std::string_view endType,
                               Group& end) {
    Group g;
    while (next(g)) {
        std::string_view type = trimBlanks(g.value);
        if (g.code != 0)
            return fail(g.line, L"expected \"0\" and an entity type, found group " +
                                    std::to_wstring(g.code));
        if (type == endType) {
            end = g;
            return true;
        }
        if (type == "ENDSEC" || type == "EOF" || type == "SECTION" || type == "ENDBLK")
            return fail(g.line, L"unexpected " + quoted(type) + (block == kNone ? L" in the ENTITIES section"
                                                                                : L" inside a BLOCK"));
        if (type == "VERTEX" || type == "ATTRIB" || type == "SEQEND")
            return fail(g.line, fromUtf8(type) + L" does not follow a POLYLINE or INSERT");
        uint32_t index;
        if (!readRecord(g, RecordKind::Entity, index)) return false;
        place(index, into, block);
        std::string_view follows;
        bool polyline = type == "POLYLINE";
        bool attributes = type == "INSERT" && findGroup(db_.records_[index].groups, 66, follows) &&
                          trimBlanks(follows) == "1";
        if ((polyline || attributes) && !readParts(index, std::string(type), g.line, into, block)) return false;
    }
    return false;
}

void DxfReader::place(uint32_t index, std::vector<uint32_t>& into, uint32_t block) {
    db_.records_[index].block = block;
    db_.records_[index].pos = static_cast<uint32_t>(into.size());
    into.push_back(index);
}

bool DxfReader::readParts(uint32_t head, const std::string& type, size_t headLine, std::vector<uint32_t>& into,
                          uint32_t block) {
    bool polyline = type == "POLYLINE";
    std::string_view partType = polyline ? "VERTEX" : "ATTRIB";
    bool anyPart = false;
    Group g;
    while (next(g)) {
        std::string_view t = trimBlanks(g.value);
        if (t == partType || t == "SEQEND") {
            uint32_t part;
            if (!readRecord(g, RecordKind::SubEntity, part)) return false;
            db_.records_[part].main = head;
            place(part, into, block);
            anyPart = true;
            if (t == "SEQEND") return true;
            continue;
        }
        if (!polyline && !anyPart) {  // an INSERT whose attributes-follow flag is wrong
            pushBack(g);
            return true;
        }
        return fail(g.line, fromUtf8(type) + L" at line " + std::to_wstring(headLine) +
                                L" is not closed by SEQEND before " + quoted(t));
    }
    if (error_->empty())
        fail(line_, fromUtf8(type) + L" at line " + std::to_wstring(headLine) +
                        L" is not closed by SEQEND; the file may be truncated");
    return false;
}

bool DxfReader::readRecords(Section& section) {
    Group g;
    RecordKind kind = section.kind == SectionKind::Objects ? RecordKind::Object : RecordKind::Other;
    while (next(g)) {
        std::string_view type = trimBlanks(g.value);
        if (g.code != 0)
            return fail(g.line, L"expected \"0\" and an object type, found group " +
                                    std::to_wstring(g.code));
        if (type == "ENDSEC") return true;
        if (type == "EOF" || type == "SECTION")
            return fail(g.line, L"the " + fromUtf8(section.name) + L" section is not closed by ENDSEC");
        uint32_t index;
        if (!readRecord(g, kind, index)) return false;
        section.records.push_back(index);
    }
    return false;
}

std::vector<uint32_t> DxfReader::duplicateHandles() {
    // A handle used twice keeps its first record; the others get new ones.
    std::unordered_set<uint64_t> seen;
    seen.reserve(db_.records_.size());
    std::vector<uint32_t> duplicates;
    for (uint32_t i = 0; i < db_.records_.size(); ++i) {
        uint64_t h = db_.records_[i].handle;
        if (!h) continue;
        if (!seen.insert(h).second) {
            db_.records_[i].handle = 0;
            duplicates.push_back(i);
            db_.warnings_.push_back(L"handle " + fromUtf8(handleText(h)) +
                                    L" is used more than once; a later object was given a new handle");
        }
        db_.noteHandle(h);
    }
    return duplicates;
}

bool DxfReader::needsHandle(const Record& r) const {
    if (r.deleted) return false;  // a table given twice: its second head and end
    switch (r.kind) {
    case RecordKind::Entity:
    case RecordKind::SubEntity: return true;
    case RecordKind::BlockBegin:
    case RecordKind::BlockEnd:
    case RecordKind::TableHead:
    case RecordKind::TableEntry:
    case RecordKind::Object: return !db_.isR12();
    default: return false;
    }
}

// The new handle takes the place of the record's handle group: one used twice, or one that
// does not read as a handle (17 hex digits, "0"), which must not stay beside the new one.
void DxfReader::giveHandle(uint32_t index) {
    Record& r = db_.records_[index];
    if (!needsHandle(r)) return;
    int code = db_.typeName(r) == "DIMSTYLE" && !db_.isR12() ? 105 : 5;
    uint64_t h = db_.newHandle();
    std::string groups;
    appendGroup(groups, code, handleText(h));
    BlobCursor c(r.groups);
    RawGroup g;
    bool replaced = false;
    while (c.next(g)) {
        if (!replaced && (g.code == 5 || g.code == 105)) {
            replaced = true;
            continue;
        }
        appendGroup(groups, g.code, g.value);
    }
    r.groups = std::move(groups);
    r.handle = h;
}

// Records without a handle, and the later ones of a handle used twice, get handles numbered
// above every handle of the file and above its seed. The writer puts the new seed (and for
// R12 the variable saying that handles are in use) into the header.
void DxfReader::giveHandles() {
    std::vector<uint32_t> duplicates = duplicateHandles();
    uint64_t seed = 0;
    if (parseHandle(db_.headerValue("$HANDSEED", 5), seed) && seed) db_.noteHandle(seed - 1);
    for (auto [index, line] : missingHandles_) giveHandle(index);
    for (uint32_t index : duplicates) giveHandle(index);
}

bool DxfReader::finish() {
    std::string acadver(trimBlanks(db_.headerValue("$ACADVER", 1)));
    if (acadver.empty()) acadver = "AC1009";
    db_.setVersion(acadver, trimBlanks(db_.headerValue("$DWGCODEPAGE", 3)));
    giveHandles();
    db_.indexAll();
    auditXdata();
    return true;
}

}  // namespace host::db
