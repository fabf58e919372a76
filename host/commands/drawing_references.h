// What the entities of a drawing refer to by name: the layers they lie on and the blocks
// they insert, counted in model and paper space and inside every block definition (the
// BLOCK records' own layers included). Names are kept upper-case.
#pragma once

#include <set>
#include <string>

namespace host::db {
class Database;
}

namespace host::cmd {

struct References {
    std::set<std::wstring> layers;
    std::set<std::wstring> blocks;  // by INSERT and DIMENSION entities
};

References referencesOf(const db::Database& d);

}  // namespace host::cmd
