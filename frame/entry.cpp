// The module's entry point: the host's application messages.
#include <memory>

#include "acedads.h"
#include "frame/boundary.h"
#include "frame/dispatch.h"
#include "frame/doc_data.h"
#include "frame/module_state.h"
#include "rxdefs.h"
#include "rxregsvc.h"
#include "psychro/airstate/alert.h"
#include "windows.h"

namespace vrn2 {

HWND g_unitConversionWindow = nullptr;

namespace {
std::unique_ptr<AsdkDataManager<CDocData>> g_docDataManager;
}

AsdkDataManager<CDocData>& docDataManager() {
    if (!g_docDataManager) g_docDataManager = std::make_unique<AsdkDataManager<CDocData>>();
    return *g_docDataManager;
}

namespace {

void initApplication(void* appId) {
    AcRxDynamicLinker* linker = acrxDynamicLinker;
    if (!linker) return;
    linker->unlockApplication(appId);
    linker->registerAppMDIAware(appId);
    docDataManager();
    // The humid-air library's alert is the editor's alert box.
    airstate::SetAlertSink([](const wchar_t* text) { acedAlert(text); });
}

void unloadApplication() {
    if (g_unitConversionWindow) {
        DestroyWindow(g_unitConversionWindow);
        g_unitConversionWindow = nullptr;
    }
    // The library is about to be unmapped: the reactor must leave the document manager now.
    g_docDataManager.reset();
    airstate::SetAlertSink(nullptr);
}

}  // namespace
}  // namespace vrn2

extern "C" ACRX_EXPORT AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt) {
    return vrn2::guarded(L"acrxEntryPoint", AcRx::kRetError, [&] {
        switch (msg) {
        case AcRx::kInitAppMsg: vrn2::initApplication(pkt); break;
        case AcRx::kUnloadAppMsg: vrn2::unloadApplication(); break;
        case AcRx::kLoadDwgMsg: vrn2::registerFunctions(); break;
        case AcRx::kUnloadDwgMsg: vrn2::unregisterFunctions(); break;
        case AcRx::kInvkSubrMsg: vrn2::dispatchInvocation(); break;
        default: break;
        }
        return AcRx::kRetOK;
    });
}

// What the platform's link library supplies to every module: the API version it was built for.
extern "C" ACRX_EXPORT int acrxGetApiVersion() { return ACRX_API_VERSION; }
