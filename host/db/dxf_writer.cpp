// Writes a database as ASCII DXF: every section, table, block, entity and object in the order
// it was read or made, each record's groups as they are held, deleted records left out.
#include "host/db/dxf_writer.h"

#include <cstdio>

#include "host/db/blob.h"
#include "host/db/header_sync.h"

namespace host::db {
namespace {

class Writer {
public:
    Writer(const Database& db, OutputSink& sink) : db_(db), sink_(sink), eol_(db.format().eol) {
        buffer_.reserve(kChunk + 4096);
        if (db.sysvars()) changes_ = changesToSave(db, *db.sysvars());
        seed();
    }

    bool run() {
        if (db_.format().bom) buffer_ += "\xEF\xBB\xBF";
        for (const auto& c : db_.comments()) group(999, c);
        bool hasHeader = false;
        for (const auto& s : db_.sections()) hasHeader |= s.kind == SectionKind::Header;
        if (!hasHeader && !changes_.added.empty()) {  // variables a drawing without a header needs
            group(0, "SECTION");
            group(2, "HEADER");
            header();
            group(0, "ENDSEC");
        }
        for (const auto& s : db_.sections()) {
            group(0, "SECTION");
            group(2, s.name);
            {
                BlobCursor c(s.head);
                RawGroup g;
                while (c.next(g)) group(g.code, g.value);
            }
            switch (s.kind) {
            case SectionKind::Header: header(); break;
            case SectionKind::Tables: tables(); break;
            case SectionKind::Blocks: blocks(); break;
            case SectionKind::Entities: list(db_.entities()); break;
            default: list(s.records); break;
            }
            group(0, "ENDSEC");
            if (!ok_) return false;
        }
        group(0, "EOF");
        return flush();
    }

private:
    static constexpr size_t kChunk = 1 << 20;

    // $HANDSEED above the handles given since the drawing was read.
    void seed() {
        uint64_t written = 0;
        bool present = parseHandle(db_.headerValue("$HANDSEED", 5), written);
        if (present && written >= db_.handseed()) return;
        if (!present && !db_.headerVar("$HANDSEED")) {
            if (db_.handseed() <= 1) return;  // no handle anywhere
            if (db_.isR12() && !db_.headerVar("$HANDLING")) {  // R12 says that handles are in use
                std::string on;
                appendGroup(on, 70, "1");
                changes_.added.emplace_back("$HANDLING", std::move(on));
            }
            std::string blob;
            appendGroup(blob, 5, handleText(db_.handseed()));
            changes_.added.emplace_back("$HANDSEED", std::move(blob));
            return;
        }
        std::string blob;
        appendGroup(blob, 5, handleText(db_.handseed()));
        changes_.header["$HANDSEED"] = std::move(blob);
    }

    void code(int c) {
        char buf[8];
        int n = std::snprintf(buf, sizeof buf, db_.format().padCodes ? "%3d" : "%d", c);
        buffer_.append(buf, static_cast<size_t>(n));
        buffer_ += eol_;
    }
    void group(int c, std::string_view value) {
        code(c);
        buffer_ += value;
        buffer_ += eol_;
        if (buffer_.size() >= kChunk) flush();
    }
    bool flush() {
        if (!ok_) return false;
        if (!buffer_.empty() && !sink_.write(buffer_)) ok_ = false;
        buffer_.clear();
        return ok_;
    }

    void record(uint32_t index) {
        const Record& r = db_.record(index);
        if (r.deleted) return;
        group(0, db_.typeName(r));
        auto changed = changes_.records.find(index);
        groups(changed == changes_.records.end() ? std::string_view(r.groups) : changed->second);
    }
    void groups(std::string_view blob) {
        BlobCursor c(blob);
        RawGroup g;
        while (c.next(g)) group(g.code, g.value);
    }
    void list(const std::vector<uint32_t>& records) {
        for (uint32_t i : records) record(i);
    }
    void header() {
        for (const auto& v : db_.header()) {
            group(9, v.name);
            auto changed = changes_.header.find(v.name);
            groups(changed == changes_.header.end() ? std::string_view(v.groups) : changed->second);
        }
        for (const auto& [name, blob] : changes_.added) {
            group(9, name);
            groups(blob);
        }
    }
    void tables() {
        for (const auto& t : db_.tables()) {
            record(t.head);
            list(t.entries);
            if (t.end != kNone) record(t.end);
            else group(0, "ENDTAB");
        }
    }
    void blocks() {
        for (const auto& b : db_.blocks()) {
            if (db_.record(b.begin).deleted) continue;
            record(b.begin);
            list(b.entities);
            if (b.end != kNone) record(b.end);
            else group(0, "ENDBLK");
        }
    }

    const Database& db_;
    OutputSink& sink_;
    std::string eol_;
    std::string buffer_;
    bool ok_ = true;
    SaveOverrides changes_;
};

class StringSink : public OutputSink {
public:
    explicit StringSink(std::string& out) : out_(out) {}
    bool write(std::string_view bytes) override {
        out_ += bytes;
        return true;
    }

private:
    std::string& out_;
};

}  // namespace

bool writeDxf(const Database& db, OutputSink& sink) { return Writer(db, sink).run(); }

std::string Database::dxfText() const {
    std::string out;
    StringSink sink(out);
    writeDxf(*this, sink);
    return out;
}

}  // namespace host::db
