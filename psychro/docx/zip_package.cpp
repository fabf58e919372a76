#include "psychro/docx/zip_package.h"

#include <cstdio>
#include <ctime>

#include <zip.h>

namespace vrn2 {
namespace {

// Adds every part to ARCHIVE; the parts' bytes must live until the archive is closed.
bool addParts(zip_t* archive, const std::vector<PackagePart>& parts, long long mtime) {
    for (const PackagePart& part : parts) {
        zip_source_t* source = zip_source_buffer(archive, part.bytes.data(), part.bytes.size(), 0);
        if (!source) return false;
        zip_int64_t index = zip_file_add(archive, part.name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_source_free(source);
            return false;
        }
        auto entry = static_cast<zip_uint64_t>(index);
        if (zip_set_file_compression(archive, entry, ZIP_CM_DEFLATE, 0) != 0 ||
            zip_file_set_mtime(archive, entry, static_cast<time_t>(mtime), 0) != 0)
            return false;
    }
    return true;
}

// The bytes that zip_close wrote into the in-memory SOURCE.
bool readSource(zip_source_t* source, std::string& bytes) {
    if (zip_source_open(source) != 0) return false;
    bool read = false;
    if (zip_source_seek(source, 0, SEEK_END) == 0) {
        zip_int64_t size = zip_source_tell(source);
        if (size >= 0 && zip_source_seek(source, 0, SEEK_SET) == 0) {
            bytes.resize(static_cast<std::size_t>(size));
            read = zip_source_read(source, bytes.data(), bytes.size()) == size;
        }
    }
    zip_source_close(source);
    return read;
}

}  // namespace

bool zipPackage(const std::vector<PackagePart>& parts, long long mtime, std::string& archive) {
    archive.clear();
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* memory = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_error_fini(&error);
    if (!memory) return false;
    zip_t* zip = zip_open_from_source(memory, ZIP_TRUNCATE, nullptr);
    if (!zip) {
        zip_source_free(memory);
        return false;
    }
    zip_source_keep(memory);  // closing the archive must not free the memory it was written to
    bool done = addParts(zip, parts, mtime);
    if (done) {
        done = zip_close(zip) == 0;
        if (!done) zip_discard(zip);
    } else {
        zip_discard(zip);
    }
    done = done && readSource(memory, archive);
    zip_source_free(memory);
    if (!done) archive.clear();
    return done;
}

}  // namespace vrn2
