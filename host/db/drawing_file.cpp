// Loading a drawing from a file and saving it to one. Saving writes a temporary file beside
// the target and renames it over the target only when every byte is written, so a failed
// save leaves the previous file as it was.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "host/db/database.h"
#include "host/db/dxf_writer.h"
#include "host/db/save_fault.h"
#include "host/file_names.h"
#include "host/session.h"
#include "host/text.h"

namespace host::db {
namespace {

std::filesystem::path platformPath(const std::filesystem::path& path) {
    std::string s = path.string();
    for (auto& c : s)
        if (c == '\\') c = '/';
    return s;
}

std::wstring systemError(int err) { return fromUtf8(std::strerror(err)); }

struct ArmedSaveFault {
    SaveFault fault;
};

SaveFault& saveFault() { return sessionPart<ArmedSaveFault>().fault; }

class FileSink : public OutputSink {
public:
    explicit FileSink(int fd) : fd_(fd) {}
    bool write(std::string_view bytes) override {
        const SaveFault& fault = saveFault();
        if (fault && fault(written_ + bytes.size())) {
            error_ = ENOSPC;
            return false;
        }
        while (!bytes.empty()) {
            ssize_t n = ::write(fd_, bytes.data(), bytes.size());
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) {
                error_ = n < 0 ? errno : EIO;
                return false;
            }
            bytes.remove_prefix(static_cast<size_t>(n));
            written_ += static_cast<size_t>(n);
        }
        return true;
    }
    int error() const { return error_; }

private:
    int fd_;
    size_t written_ = 0;
    int error_ = 0;
};

}  // namespace

void setSaveFault(SaveFault fault) { saveFault() = std::move(fault); }

std::unique_ptr<Database> Database::load(const std::filesystem::path& given, std::wstring& error) {
    std::filesystem::path path = platformPath(given);
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec)) {
        error = L"cannot open " + host::nameOf(path) + L": it is a folder";
        return nullptr;
    }
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        error = L"cannot open " + host::nameOf(path) + L": " + systemError(errno);
        return nullptr;
    }
    struct stat st{};
    if (::fstat(fd, &st) != 0) {
        error = L"cannot read " + host::nameOf(path) + L": " + systemError(errno);
        ::close(fd);
        return nullptr;
    }
    auto size = static_cast<size_t>(st.st_size);
    if (size == 0) {
        ::close(fd);
        return parse({}, host::nameOf(path.filename()), error);
    }
    // The file is read through a mapping whose pages are let go once the reader is past
    // them, so that a large drawing is not held twice while it is read.
    void* map = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd, 0);
    ::close(fd);
    if (map == MAP_FAILED) {
        error = L"cannot read " + host::nameOf(path) + L": " + systemError(errno);
        return nullptr;
    }
    ::madvise(map, size, MADV_SEQUENTIAL);
    auto* base = static_cast<char*>(map);
    size_t released = 0;
    const auto page = static_cast<size_t>(::sysconf(_SC_PAGESIZE));
    auto consumed = [&](size_t upto) {
        constexpr size_t kMargin = 1 << 20;  // the group held back by the reader stays mapped
        if (upto < kMargin) return;
        size_t end = (upto - kMargin) / page * page;
        if (end <= released) return;
        ::madvise(base + released, end - released, MADV_DONTNEED);
        released = end;
    };
    auto db = parse(std::string_view(base, size), host::nameOf(path.filename()), error, consumed);
    ::munmap(map, size);
    return db;
}

bool Database::save(const std::filesystem::path& given, std::wstring& error) const {
    std::filesystem::path path = platformPath(given);
    std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
    // The file is written beside its place under a temporary name: "." + name + ".XXXXXX",
    // the name cut so that the whole stays within the 255 bytes a file name may have.
    constexpr size_t kNameRoom = 255 - 8;
    std::string name = path.filename().string().substr(0, kNameRoom);
    std::string pattern = (folder / ("." + name + ".XXXXXX")).string();
    int fd = mkstemp(pattern.data());
    if (fd < 0) {
        error = L"cannot save " + host::nameOf(path) + L": " + systemError(errno);
        return false;
    }
    std::string temp = pattern;
    struct stat old{};
    mode_t mode = 0644;
    if (::stat(path.c_str(), &old) == 0) mode = old.st_mode & 07777;
    ::fchmod(fd, mode);

    FileSink sink(fd);
    bool ok = writeDxf(*this, sink);
    int err = sink.error();
    if (ok && ::fsync(fd) != 0) {
        ok = false;
        err = errno;
    }
    if (::close(fd) != 0 && ok) {
        ok = false;
        err = errno;
    }
    if (ok && std::rename(temp.c_str(), path.c_str()) != 0) {
        ok = false;
        err = errno;
    }
    if (!ok) {
        ::unlink(temp.c_str());
        error = L"cannot save " + host::nameOf(path) + L": " + systemError(err ? err : EIO) +
                L"; the previous file is unchanged";
    }
    return ok;
}

}  // namespace host::db
