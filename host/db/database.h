// The drawing database of one document.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace host::db {

class Database {
public:
    Database();  // a new, empty drawing
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Reads a DXF drawing; null with a message naming the problem when it cannot.
    static std::unique_ptr<Database> load(const std::filesystem::path& path, std::wstring& error);
    // Writes the drawing as DXF; false with a message when it cannot.
    bool save(const std::filesystem::path& path, std::wstring& error) const;
};

}  // namespace host::db
