// DXF reading: load, walk every entity as entget gives it, write, read the written text again
// and write it once more; the two writings must be the same.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "acdbads.h"
#include "acutads.h"
#include "host/db/database.h"
#include "host/runtime/host.h"
#include "host/session.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    host::Session session;
    std::string_view text(reinterpret_cast<const char*>(data), size);
    std::wstring error;
    auto db = host::db::Database::parse(text, L"fuzz.dxf", error);
    if (!db) return 0;
    std::string written = db->dxfText();
    auto again = host::db::Database::parse(written, L"written.dxf", error);
    if (!again || again->dxfText() != written) std::abort();  // what the host writes, it reads back unchanged

    auto& editor = host::Host::instance();
    editor.openDocument(L"fuzz.dxf", std::move(db));
    ads_name e;
    for (int found = acdbEntNext(nullptr, e); found == RTNORM; found = acdbEntNext(e, e)) {
        struct resbuf apps{};
        apps.restype = RTSTR;
        apps.resval.rstring = const_cast<ACHAR*>(L"*");
        acutRelRb(acdbEntGetX(e, &apps));
    }
    editor.closeAllDocuments();
    return 0;
}
