// The parse tree of a DCL file: tile definitions, their bodies and the @include directives.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host::dcl {

// An attribute value as written. Strings are kept unescaped; numbers and reserved words keep
// their spelling, because applications read attributes back as strings.
struct AttrValue {
    enum class Type { String, Integer, Real, Word } type = Type::String;
    std::wstring text;
};

struct Attribute {
    std::wstring name;
    AttrValue value;
    int line = 0;
};

struct Item;

// What sits between the braces of a definition or an instance.
struct Body {
    std::vector<Attribute> attributes;  // in source order; a later one replaces an earlier one
    std::vector<Item> children;
};

// A child tile inside a body: `name;` (reference) or `: proto { ... }` (instance). A named
// definition nested inside a body is accepted as an instance of its prototypes.
struct Item {
    enum class Kind { Reference, Instance } kind = Kind::Reference;
    std::vector<std::wstring> prototypes;  // Reference: the one name used as is
    Body body;
    int line = 0;
};

struct Definition {
    std::wstring name;
    std::vector<std::wstring> parents;  // left-most first; empty for a built-in primitive
    Body body;
    int line = 0;
    std::filesystem::path file;  // empty for the host's own definitions
};

struct Include {
    std::wstring name;  // as written
    int line = 0;
};

struct SyntaxError {
    int line = 0;
    std::wstring message;
};

struct ParsedFile {
    std::filesystem::path path;
    std::vector<Definition> definitions;
    std::vector<Include> includes;
};

}  // namespace host::dcl
