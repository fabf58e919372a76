// An open C file that is closed on every way out.
#pragma once

#include <cstdio>

#include "wchar_io.h"

namespace vrn2 {

class FileHandle {
public:
    FileHandle() = default;
    // Opens PATH with _wfopen; test the handle before use.
    FileHandle(const wchar_t* path, const wchar_t* mode) : file_(_wfopen(path, mode)) {}
    ~FileHandle() {
        if (file_) std::fclose(file_);
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    FileHandle(FileHandle&& other) noexcept : file_(other.file_) { other.file_ = nullptr; }
    FileHandle& operator=(FileHandle&& other) noexcept {
        if (this != &other) {
            if (file_) std::fclose(file_);
            file_ = other.file_;
            other.file_ = nullptr;
        }
        return *this;
    }

    FILE* get() const { return file_; }
    explicit operator bool() const { return file_ != nullptr; }

    // Closes the file now; false when it was not open or buffered data could not be written.
    bool close() {
        FILE* f = file_;
        file_ = nullptr;
        return f && std::fclose(f) == 0;
    }

private:
    FILE* file_ = nullptr;
};

// Whether PATH can be opened for reading.
inline bool fileExists(const wchar_t* path) { return static_cast<bool>(FileHandle(path, L"r")); }

}  // namespace vrn2
