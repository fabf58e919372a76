#include "host/db/database.h"

namespace host::db {

Database::Database() = default;
Database::~Database() = default;

std::unique_ptr<Database> Database::load(const std::filesystem::path&, std::wstring& error) {
    error = L"reading DXF drawings is not available in this version";
    return nullptr;
}

bool Database::save(const std::filesystem::path&, std::wstring& error) const {
    error = L"writing DXF drawings is not available in this version";
    return false;
}

}  // namespace host::db
