// "_Xgetsyspath", "XGetVrA", "XGetVrB": string values of the suite's registry key for AutoLISP.
// They answer 1 on success and -1 on failure, which the host sees as an error either way.
#include "acedads.h"
#include "acutads.h"
#include "frame/frame_handlers.h"
#include "windows.h"

namespace vrn2 {
namespace {

constexpr wchar_t kSuiteKey[] = L"SOFTWARE\\Morvell\\Vornex\\6.0\\";

enum class MissingValue { Report, ReturnEmpty };

int returnRegistryValue(const wchar_t* valueName, MissingValue missing, bool asValueList) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kSuiteKey, 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) {
        acutPrintf(L"\n注册表内无Vorn系统路径指示!\n请运行“安装程序”!");
        return -1;
    }
    WCHAR buffer[260] = {};  // 520 bytes where a wide character has two
    DWORD size = sizeof buffer;
    DWORD type = 0;
    if (RegQueryValueExW(key, valueName, nullptr, &type, reinterpret_cast<LPBYTE>(buffer), &size) != ERROR_SUCCESS) {
        if (missing == MissingValue::Report) acutPrintf(L"\n注册表内Vorn系统路径未设置!\n请运行“安装程序”!");
        else acedRetStr(L"");
        RegCloseKey(key);
        return -1;
    }
    RegCloseKey(key);
    buffer[259] = L'\0';
    if (asValueList) {
        resbuf value{};
        value.restype = RTSTR;
        value.resval.rstring = buffer;
        acedRetVal(&value);
    } else {
        acedRetStr(buffer);
    }
    return 1;
}

}  // namespace

int getSysPath() { return returnRegistryValue(L"SysPath", MissingValue::Report, true); }
int getVrnResultA() { return returnRegistryValue(L"VrnResult", MissingValue::ReturnEmpty, false); }
int getVrnResultB() { return returnRegistryValue(L"VrnBResult", MissingValue::ReturnEmpty, false); }

}  // namespace vrn2
