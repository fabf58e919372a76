// Turns definitions into tiles: inherited attributes (the left-most parent wins among several),
// the children of subassemblies, references and instances. Finds undefined tiles, circular
// definitions and changed subassemblies.
#pragma once

#include <map>
#include <optional>
#include <set>

#include "host/dcl/library.h"
#include "host/dcl/problem.h"
#include "host/dcl/tile.h"

namespace host::dcl {

class Expander {
public:
    // AUDIT false skips the checks that only the semantic audit makes (changed subassemblies).
    Expander(const Library& library, std::vector<Problem>& problems, bool audit = true);

    // The tile a definition makes on its own; nullopt after reporting its problems.
    std::optional<Tile> build(const Definition& def);

private:
    struct Resolved {
        bool ok = false;
        TileKind kind = TileKind::Tile;
        std::map<std::wstring, AttrValue> attributes;
        std::vector<Tile> children;
        size_t tiles = 0;  // how many tiles the children make, at every level
    };
    // Expansion copies subassemblies into every place that names them: tiles naming each other
    // four ways over thirty levels would make 4^30 tiles. A dialog stops at these limits.
    static constexpr size_t kMaxTiles = 100000;
    static constexpr size_t kMaxPrototypeChain = 256;

    const Resolved* resolveName(const std::wstring& name, const std::filesystem::path& file, int line);
    const Resolved* resolveDefinition(const Definition& def, const std::filesystem::path& file, int line);
    bool combine(const std::vector<std::wstring>& parents, const Body& body,
                 const std::filesystem::path& file, int line, Resolved& out);
    std::optional<Tile> item(const Item& item, const std::filesystem::path& file, size_t& tiles);
    void problem(const std::filesystem::path& file, int line, std::wstring message);
    // Counts tiles copied; false, once reported, when the dialog grows past kMaxTiles.
    bool spend(size_t tiles, const std::filesystem::path& file, int line);

    const Library& library_;
    std::vector<Problem>& problems_;
    bool audit_;
    std::map<const Definition*, Resolved> resolved_;
    std::set<const Definition*> visiting_;
    size_t tilesMade_ = 0;
    bool chainReported_ = false;
};

}  // namespace host::dcl
