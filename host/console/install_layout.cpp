#include "host/console/install_layout.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace host::console {
namespace {

constexpr char kShareFolder[] = "share/vrn2";
constexpr char kLibFolder[] = "lib/vrn2";

std::string asFolder(const fs::path& p) {
    std::string s = p.lexically_normal().string();
    if (s.empty() || s.back() != '/') s += '/';
    return s;
}

}  // namespace

InstallLayout findInstallLayout(const std::string& programFolder, const std::string& sourceRoot,
                                const std::string& moduleName) {
    InstallLayout layout;
    std::error_code ec;
    fs::path prefix = fs::path(programFolder).parent_path();
    fs::path installedTree = prefix / kShareFolder;
    fs::path beside = fs::path(programFolder) / moduleName;
    if (fs::is_directory(installedTree / "system", ec)) {
        layout.root = asFolder(installedTree);
        layout.module = (prefix / kLibFolder / moduleName).string();
        return layout;
    }
    if (!sourceRoot.empty() && fs::is_directory(sourceRoot, ec)) layout.root = asFolder(sourceRoot);
    layout.module = beside.string();
    return layout;
}

std::string programFolder() {
    std::error_code ec;
    fs::path self = fs::read_symlink("/proc/self/exe", ec);
    return ec ? std::string(".") : self.parent_path().string();
}

}  // namespace host::console
