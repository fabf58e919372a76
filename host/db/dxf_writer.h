// DXF output of a database, written in chunks to a sink.
#pragma once

#include <string_view>

#include "host/db/database.h"

namespace host::db {

class OutputSink {
public:
    virtual ~OutputSink() = default;
    virtual bool write(std::string_view bytes) = 0;  // false when the bytes could not be written
};

bool writeDxf(const Database& db, OutputSink& sink);

}  // namespace host::db
