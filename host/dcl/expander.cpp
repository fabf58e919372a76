#include "host/dcl/expander.h"

#include "host/dcl/base_prototypes.h"

namespace host::dcl {

Expander::Expander(const Library& library, std::vector<Problem>& problems, bool audit)
    : library_(library), problems_(problems), audit_(audit) {}

void Expander::problem(const std::filesystem::path& file, int line, std::wstring message) {
    problems_.push_back(Problem{file, line, std::move(message)});
}

bool Expander::spend(size_t tiles, const std::filesystem::path& file, int line) {
    bool wasWithin = tilesMade_ <= kMaxTiles;
    tilesMade_ += tiles;
    if (tilesMade_ <= kMaxTiles) return true;
    if (wasWithin)
        problem(file, line, L"the dialog expands to more than " + std::to_wstring(kMaxTiles) +
                                L" tiles; subassemblies name each other too many times");
    return false;
}

std::optional<Tile> Expander::build(const Definition& def) {
    const Resolved* r = resolveDefinition(def, def.file, def.line);
    if (!r) return std::nullopt;
    return Tile{r->kind, def.name, r->attributes, r->children, def.file, def.line};
}

const Expander::Resolved* Expander::resolveName(const std::wstring& name, const std::filesystem::path& file,
                                                int line) {
    const Definition* def = library_.find(name);
    if (!def) {
        problem(file, line, L"undefined tile '" + name + L"'");
        return nullptr;
    }
    return resolveDefinition(*def, file, line);
}

const Expander::Resolved* Expander::resolveDefinition(const Definition& def, const std::filesystem::path& file,
                                                      int line) {
    if (auto it = resolved_.find(&def); it != resolved_.end()) return it->second.ok ? &it->second : nullptr;
    if (visiting_.count(&def)) {
        problem(file, line, L"circular definition of tile '" + def.name + L"'");
        return nullptr;
    }
    if (visiting_.size() >= kMaxPrototypeChain) {
        if (!chainReported_)  // once: every tile further down the chain fails the same way
            problem(file, line, L"the prototypes of tile '" + def.name + L"' derive from each other more than " +
                                    std::to_wstring(kMaxPrototypeChain) + L" levels deep");
        chainReported_ = true;
        resolved_[&def] = Resolved{};
        return nullptr;
    }
    visiting_.insert(&def);
    Resolved r;
    if (auto kind = primitiveKind(def)) {
        r.kind = *kind;
        for (const auto& a : def.body.attributes) r.attributes[a.name] = a.value;
        r.ok = true;
    } else {
        r.ok = combine(def.parents, def.body, def.file, def.line, r);
    }
    visiting_.erase(&def);
    auto& stored = resolved_[&def] = std::move(r);
    return stored.ok ? &stored : nullptr;
}

// The body's own attributes first; then each parent, left to right, adds what is still
// missing. Children: those of the first parent that has any, then the body's own.
bool Expander::combine(const std::vector<std::wstring>& parents, const Body& body,
                       const std::filesystem::path& file, int line, Resolved& out) {
    for (const auto& a : body.attributes) out.attributes[a.name] = a.value;
    bool ok = true;
    bool inherited = false;
    for (size_t i = 0; i < parents.size(); ++i) {
        const Resolved* parent = resolveName(parents[i], file, line);
        if (!parent) {
            ok = false;
            continue;
        }
        if (i == 0) out.kind = parent->kind;
        for (const auto& [name, value] : parent->attributes) out.attributes.emplace(name, value);
        if (!inherited && !parent->children.empty()) {
            if (!spend(parent->tiles, file, line)) return false;
            out.children = parent->children;
            out.tiles += parent->tiles;
            inherited = true;
        }
    }
    for (const auto& child : body.children) {
        size_t tiles = 0;
        auto tile = item(child, file, tiles);
        if (tile) {
            out.children.push_back(std::move(*tile));
            out.tiles += tiles;
        } else {
            ok = false;
        }
    }
    return ok;
}

std::optional<Tile> Expander::item(const Item& it, const std::filesystem::path& file, size_t& tiles) {
    if (it.kind == Item::Kind::Reference) {
        const Resolved* r = resolveName(it.prototypes.front(), file, it.line);
        if (!r || !spend(r->tiles + 1, file, it.line)) return std::nullopt;
        tiles = r->tiles + 1;
        return Tile{r->kind, it.prototypes.front(), r->attributes, r->children, file, it.line};
    }
    if (audit_ && it.prototypes.size() == 1 && (!it.body.attributes.empty() || !it.body.children.empty())) {
        // An undefined name is reported once, by combine() below.
        const Definition* def = library_.find(it.prototypes.front());
        const Resolved* proto = def ? resolveDefinition(*def, file, it.line) : nullptr;
        if (proto && !proto->children.empty()) {
            problem(file, it.line, L"the subassembly '" + it.prototypes.front() +
                                       L"' cannot be changed; use it as '" + it.prototypes.front() + L";'");
            return std::nullopt;
        }
    }
    Resolved r;
    if (!combine(it.prototypes, it.body, file, it.line, r) || !spend(1, file, it.line)) return std::nullopt;
    tiles = r.tiles + 1;
    return Tile{r.kind, it.prototypes.front(), std::move(r.attributes), std::move(r.children), file, it.line};
}

}  // namespace host::dcl
