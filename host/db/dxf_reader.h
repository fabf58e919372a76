// Reads ASCII DXF text into a database, group by group. The values are kept as they are in
// the file; numbers are checked so that a damaged file is refused with the line at fault
// rather than loaded in part. Binary DXF and DWG files are refused.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "host/db/database.h"

namespace host::db {

class DxfReader {
public:
    DxfReader(Database& db, std::wstring_view source) : db_(db), source_(source) {}
    // False with a message naming the line when the text is not a DXF drawing; the database
    // is then not usable.
    bool read(std::string_view text, std::wstring& error);
    // Told every few megabytes how far into the text the reader has come.
    void onConsumed(std::function<void(size_t)> consumed) { consumed_ = std::move(consumed); }

private:
    struct Group {
        int code = 0;
        std::string_view value;
        size_t line = 0;  // line of the group code
    };

    bool next(Group& g);
    void pushBack(const Group& g) { pending_ = g; hasPending_ = true; }
    bool fail(size_t line, const std::wstring& what);
    bool checkValue(const Group& g);

    bool readSection(const Group& start);
    bool readHeader();
    bool readTables();
    void addTable(Table table, const std::vector<size_t>& entryLines);
    std::string_view entryName(uint32_t index) const;
    void replaceOwner(uint32_t index, uint64_t from, uint64_t to);
    bool readBlocks();
    bool readEntityList(std::vector<uint32_t>& into, uint32_t block, std::string_view endType,
                        Group& end);
    bool readRecords(Section& section);
    // Reads the groups after "0 TYPE" up to the next 0; the 0 is pushed back.
    bool readRecord(const Group& start, RecordKind kind, uint32_t& index);
    void place(uint32_t index, std::vector<uint32_t>& into, uint32_t block);
    // The VERTEX or ATTRIB records and the SEQEND after a POLYLINE or INSERT.
    bool readParts(uint32_t head, const std::string& type, size_t headLine, std::vector<uint32_t>& into,
                   uint32_t block);
    bool finish();
    std::vector<uint32_t> duplicateHandles();
    bool needsHandle(const Record& r) const;
    void giveHandle(uint32_t index);
    void giveHandles();
    bool hasSection(SectionKind kind) const;
    void auditXdata();
    void registerApplications(const std::vector<uint32_t>& withXdata);
    bool auditXdataOf(Record& r);

    Database& db_;
    std::wstring source_;
    std::string_view text_;
    size_t pos_ = 0;
    size_t line_ = 0;
    bool firstCode_ = true;
    Group pending_;
    bool hasPending_ = false;
    std::wstring* error_ = nullptr;
    std::vector<std::pair<uint32_t, size_t>> missingHandles_;  // record, line
    std::function<void(size_t)> consumed_;
    size_t reported_ = 0;
};

}  // namespace host::db
