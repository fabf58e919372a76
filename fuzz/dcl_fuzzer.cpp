// DCL: a file is loaded as a dialog file; each dialog it defines is made and started (with no
// scripted actions it is cancelled at once), then the file is unloaded.
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "adsdlg.h"
#include "host/dcl/parser.h"
#include "host/output.h"
#include "host/session.h"
#include "host/text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    host::Session session;
    host::OutputCapture quiet;  // the DCL errors a broken file gets are answers, not news
    static const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("vrn2_fuzz_" + std::to_string(::getpid()) + ".dcl");
    std::string text(reinterpret_cast<const char*>(data), size);
    std::ofstream(file, std::ios::binary | std::ios::trunc) << text;
    int id = -1;
    if (ads_load_dialog(file.wstring().c_str(), &id) != RTNORM) return 0;
    auto parsed = host::dcl::parseDcl(host::fromUtf8(text), file);
    for (const auto& def : parsed.file.definitions) {
        ads_hdlg dialog = nullptr;
        if (ads_new_dialog(def.name.c_str(), id, nullptr, &dialog) != RTNORM || !dialog) continue;
        int status = 0;
        ads_start_dialog(dialog, &status);
    }
    ads_unload_dialog(id);
    return 0;
}
