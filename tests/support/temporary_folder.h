// A temporary folder of one test, removed with everything in it when the test ends, and its
// files read and written as bytes.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace testing_support {

class TemporaryFolder {
public:
    TemporaryFolder() {
        static int serial = 0;
        dir_ = std::filesystem::temp_directory_path() /
               ("vrn2_test_" + std::to_string(::getpid()) + "_" + std::to_string(++serial));
        std::filesystem::create_directories(dir_);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(dir_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& dir() const { return dir_; }
    std::wstring path(const std::string& name) const { return (dir_ / name).wstring(); }
    std::string bytes(const std::string& name) const {
        std::ifstream in(dir_ / name, std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    void write(const std::string& name, const std::string& bytes) const {
        std::filesystem::create_directories((dir_ / name).parent_path());
        std::ofstream(dir_ / name, std::ios::binary) << bytes;
    }

private:
    std::filesystem::path dir_;
};

}  // namespace testing_support
