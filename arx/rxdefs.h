// Application messages and return codes of the module entry point.
#pragma once

namespace AcRx {

enum AppMsgCode {
    kNullMsg = 0,
    kInitAppMsg = 1,
    kUnloadAppMsg = 2,
    kLoadDwgMsg = 3,
    kUnloadDwgMsg = 4,
    kInvkSubrMsg = 5,
    kCfgMsg = 6,
    kEndMsg = 7,
    kQuitMsg = 8,
    kSaveMsg = 9,
    kDependencyMsg = 10,
    kNoDependencyMsg = 11,
    kOleUnloadAppMsg = 12,
    kPreQuitMsg = 13,
    kInitDialogMsg = 14,
    kEndDialogMsg = 15,
    kSuspendMsg = 16
};

enum AppRetCode { kRetOK = 0, kRetError = 3 };

}  // namespace AcRx

#define kLoadADSMsg kLoadDwgMsg
#define kUnloadADSMsg kUnloadDwgMsg

// Symbols a module exports for the host to find with the dynamic linker.
#if defined(_WIN32)
#define ACRX_EXPORT __declspec(dllexport)
#else
#define ACRX_EXPORT __attribute__((visibility("default")))
#endif

// The host looks up these two exports by name when it loads a module.
typedef AcRx::AppRetCode (*AcRxEntryPointFn)(AcRx::AppMsgCode msg, void* pkt);
typedef int (*AcRxGetApiVersionFn)();

// API version reported by acrxGetApiVersion: major in the high 16 bits, minor in the low.
#define ACRX_API_VERSION_MAJOR 17
#define ACRX_API_VERSION_MINOR 0
#define ACRX_API_VERSION ((ACRX_API_VERSION_MAJOR << 16) | ACRX_API_VERSION_MINOR)
