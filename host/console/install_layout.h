// Where the console finds the installation tree (dwglib/, datlib/, system/) and the module:
// relative to the program itself, so that an installed console works from any folder and
// needs nothing of the folder it was built from.
#pragma once

#include <string>

namespace host::console {

struct InstallLayout {
    std::string root;    // with a trailing separator; empty when none was found
    std::string module;  // the module's file
};

// PREFIX/bin/adscon finds PREFIX/share/vrn2/ and PREFIX/lib/vrn2/Vrn2.so. A console in its
// build folder, which has no share/ beside it, finds the module beside itself and the tree
// in SOURCE_ROOT (empty: none).
InstallLayout findInstallLayout(const std::string& programFolder, const std::string& sourceRoot,
                                const std::string& moduleName);

// The folder of the running program (/proc/self/exe); "." when it cannot be read.
std::string programFolder();

}  // namespace host::console
