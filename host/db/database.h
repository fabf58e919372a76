// The drawing database of one document: the DXF file's sections kept as records of groups.
// Every "0 TYPE" object of the file (entity, table entry, block begin and end, object) is
// one record; the groups that follow it are kept as the file held them (see blob.h), so
// that what the host does not interpret is written back as it was read.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "adsdef.h"
#include "host/db/codepage.h"

namespace host {
class SysVars;
}

namespace host::db {

constexpr uint32_t kNone = 0xFFFFFFFFu;

enum class RecordKind : uint8_t {
    Entity,      // a main entity of model or paper space or of a block definition
    SubEntity,   // VERTEX, ATTRIB or SEQEND following its POLYLINE or INSERT
    BlockBegin,  // BLOCK
    BlockEnd,    // ENDBLK
    TableHead,   // TABLE
    TableEntry,
    TableEnd,    // ENDTAB
    Object,      // a record of the OBJECTS section
    Other,       // CLASSES records and those of sections the host does not know
};

struct Record {
    std::string groups;      // the groups after "0 TYPE", as in the file
    uint64_t handle = 0;     // 0 when the record has none
    uint32_t type = 0;       // index of the type name
    uint32_t main = kNone;   // subentities: their POLYLINE or INSERT
    uint32_t block = kNone;  // entities, BLOCK and ENDBLK of a block definition: its index
    uint32_t pos = kNone;    // entities: place in the list of their space or block
    RecordKind kind = RecordKind::Object;
    bool deleted = false;
};

struct HeaderVar {
    std::string name;    // "$ACADVER"
    std::string groups;  // the groups after "9 $NAME"
};

struct Table {
    std::string name;  // upper-case: LAYER, LTYPE, STYLE, APPID, BLOCK_RECORD ...
    uint32_t head = kNone;
    std::vector<uint32_t> entries;
    uint32_t end = kNone;
};

struct BlockDef {
    uint32_t begin = kNone;
    uint32_t end = kNone;
    std::vector<uint32_t> entities;
};

enum class SectionKind { Header, Classes, Tables, Blocks, Entities, Objects, Other };

struct Section {
    SectionKind kind = SectionKind::Other;
    std::string name;
    std::string head;               // groups between the name and the first record
    std::vector<uint32_t> records;  // Classes, Objects and Other sections
};

class SelectionSets;
struct EntMakeState;

class Database {
public:
    Database();  // a new, empty drawing
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Reads a DXF drawing; null with a message naming the problem when it cannot.
    static std::unique_ptr<Database> load(const std::filesystem::path& path, std::wstring& error);
    // The same from text held in memory; source names it in messages.
    static std::unique_ptr<Database> parse(std::string_view text, std::wstring_view source,
                                           std::wstring& error);
    // The same, telling consumed how far the text has been read, so that a caller holding it
    // in a file mapping can let go of the pages behind.
    static std::unique_ptr<Database> parse(std::string_view text, std::wstring_view source,
                                           std::wstring& error,
                                           const std::function<void(size_t)>& consumed);
    // Writes the drawing as DXF; false with a message when it cannot.
    bool save(const std::filesystem::path& path, std::wstring& error) const;
    // The DXF text the drawing saves as.
    std::string dxfText() const;

    // --- identity and names -----------------------------------------------------------------
    // A number that no other database of this process shares: the first half of entity names.
    long serial() const { return serial_; }
    void nameOf(uint32_t index, ads_name name) const;
    // The record an entity name designates; kNone for a name of another drawing or none.
    uint32_t indexOf(const ads_name name) const;
    // Names for handles that designate nothing, so that a reference reads back unchanged.
    void nameOfHandle(uint64_t handle, ads_name name) const;
    bool handleOfName(const ads_name name, uint64_t& handle) const;

    // --- records ----------------------------------------------------------------------------
    std::vector<Record>& records() { return records_; }
    const std::vector<Record>& records() const { return records_; }
    Record& record(uint32_t index) { return records_[index]; }
    const Record& record(uint32_t index) const { return records_[index]; }
    const std::string& typeName(const Record& r) const { return typeNames_[r.type]; }
    uint32_t typeId(std::string_view name);
    uint32_t addRecord(std::string_view type, std::string groups, RecordKind kind);
    uint32_t findHandle(uint64_t handle) const;
    void indexHandle(uint64_t handle, uint32_t index);
    uint64_t newHandle();
    uint64_t handseed() const { return handseed_; }  // above every handle in use
    void noteHandle(uint64_t handle);  // keeps $HANDSEED above every handle in use

    // --- sections ---------------------------------------------------------------------------
    std::vector<Section>& sections() { return sections_; }
    const std::vector<Section>& sections() const { return sections_; }
    std::vector<HeaderVar>& header() { return header_; }
    const std::vector<HeaderVar>& header() const { return header_; }
    std::vector<Table>& tables() { return tables_; }
    const std::vector<Table>& tables() const { return tables_; }
    std::vector<BlockDef>& blocks() { return blocks_; }
    const std::vector<BlockDef>& blocks() const { return blocks_; }
    std::vector<uint32_t>& entities() { return entities_; }
    const std::vector<uint32_t>& entities() const { return entities_; }
    std::vector<std::string>& comments() { return comments_; }
    const std::vector<std::string>& comments() const { return comments_; }

    // Header variables by name ("$CLAYER"); null when absent.
    const HeaderVar* headerVar(std::string_view name) const;
    HeaderVar& setHeaderVar(std::string_view name, std::string groups);
    // The raw value of the variable's first group with the code; empty when absent.
    std::string_view headerValue(std::string_view name, int code) const;

    // --- format -----------------------------------------------------------------------------
    const std::string& acadver() const { return acadver_; }
    bool isR12() const { return acadver_ < "AC1012"; }  // no subclass markers, owners, objects
    const TextCodec& codec() const { return codec_; }
    std::wstring text(std::string_view raw) const { return codec_.decode(raw); }
    std::string rawText(std::wstring_view text) const { return codec_.encode(text); }
    struct Format {
        std::string eol = "\r\n";
        bool padCodes = true;  // group codes right-aligned in three columns
        bool bom = false;
    };
    Format& format() { return format_; }
    const Format& format() const { return format_; }
    // Called by the reader once the header is known.
    void setVersion(std::string acadver, std::string_view codePage);

    // --- structure lookups ------------------------------------------------------------------
    Table* table(std::string_view upperName);
    const Table* table(std::string_view upperName) const;
    // The entry of a table with the name, compared without regard to case; kNone if none.
    uint32_t findEntry(std::string_view upperTable, std::wstring_view name) const;
    // The definition of the named block; kNone if none.
    uint32_t findBlock(std::wstring_view name) const;
    std::wstring recordName(uint32_t index) const;  // its group 2
    // The BLOCK_RECORD of model space (R13 and later); 0 when there is none.
    uint64_t modelSpaceOwner() const;
    uint64_t blockRecordOf(uint32_t blockDef) const;

    // --- state of the document's work -------------------------------------------------------
    SelectionSets& selectionSets() { return *selectionSets_; }
    EntMakeState& entMakeState() { return *entMake_; }
    // The document's system variables, for the current properties of new entities and the
    // header values saved with the drawing. Null for a database without a document.
    void attachSysVars(SysVars* vars) { sysvars_ = vars; }
    SysVars* sysvars() const { return sysvars_; }
    // Cursor of acdbTblNext per table.
    std::unordered_map<std::string, size_t>& tableCursors() { return tableCursors_; }

    // Rebuilds the handle index after the records were read.
    void indexAll();
    // What the reader repaired (duplicate handles); empty for a sound file.
    const std::vector<std::wstring>& warnings() const { return warnings_; }

private:
    struct Empty {};
    explicit Database(Empty);

    long serial_;
    std::vector<Record> records_;
    std::vector<std::string> typeNames_;
    std::unordered_map<std::string, uint32_t> typeIds_;
    std::vector<std::pair<uint64_t, uint32_t>> byHandle_;  // sorted by handle
    std::vector<Section> sections_;
    std::vector<HeaderVar> header_;
    std::vector<Table> tables_;
    std::vector<BlockDef> blocks_;
    std::vector<uint32_t> entities_;
    std::vector<std::string> comments_;
    std::string acadver_ = "AC1009";
    TextCodec codec_;
    Format format_;
    uint64_t handseed_ = 1;
    uint64_t lowestFreeHandle() const;
    std::unique_ptr<SelectionSets> selectionSets_;
    std::unique_ptr<EntMakeState> entMake_;
    SysVars* sysvars_ = nullptr;
    std::unordered_map<std::string, size_t> tableCursors_;
    std::vector<std::wstring> warnings_;

    friend class DxfReader;
};

// Hex text of a handle ("1A2") and back; false for text that is not a handle.
std::string handleText(uint64_t handle);
bool parseHandle(std::string_view text, uint64_t& handle);

}  // namespace host::db
