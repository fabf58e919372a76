// Shared pieces of the coil tests: a temporary folder with database files, an alert recorder,
// and a JW20 4-row record in memory.
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

#include <clocale>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "coil/cooler_model.h"

namespace coil_test {

namespace fs = std::filesystem;

struct Alerts {
    std::vector<std::wstring> seen;
    vrn2::AlertSink sink() {
        return [this](const wchar_t* text) { seen.emplace_back(text); };
    }
};

class TempFolder : public ::testing::Test {
protected:
    void SetUp() override {
        std::setlocale(LC_CTYPE, "C.UTF-8");  // wide streams read and write UTF-8, as in the host
        dir_ = fs::temp_directory_path() /
               ("coil_" + std::to_string(::getpid()) + "_" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(dir_);
    }
    void TearDown() override { fs::remove_all(dir_); }

    // Writes UTF8 as the file NAME of the folder; answers its path as the module names files.
    std::wstring write(const std::string& name, const std::string& utf8) {
        std::ofstream(dir_ / name, std::ios::binary) << utf8;
        return (dir_ / name).wstring();
    }
    std::string read(const std::string& name) {
        std::ifstream in(dir_ / name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    std::wstring path(const std::string& name) { return (dir_ / name).wstring(); }

    fs::path dir_;
};

// JW20 at 4 rows: area per row 24.05 m², face area 1.87 m², water passage 0.00407 m²;
// K = 1 / (1 / (39.7·Vy^0.52·ξ^1.03) + 1 / (332.6·w^0.8)).
inline vrn2::CoolerModel jw20FourRows() {
    vrn2::CoolerModel m;
    m.name = L"JW20";
    m.rows = 4;
    m.A = 39.7;
    m.m = 0.52;
    m.p = 1.03;
    m.B = 332.6;
    m.n = 0.8;
    m.Fd = 24.05;
    m.Fy = 1.87;
    m.fw = 0.00407;
    m.E2[0] = {1.5, 0.841};
    m.E2[1] = {2.0, 0.797};
    m.E2[2] = {2.5, 0.768};
    m.E2[3] = {3.0, 0.740};
    return m;
}

}  // namespace coil_test
