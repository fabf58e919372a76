#include "host/win/registry.h"

#include <cstring>
#include <mutex>

#include "host/boundary.h"
#include "host/session.h"
#include "host/text.h"
#include "windows.h"

namespace host::win {
namespace {

struct Store {
    std::mutex mutex;
    std::map<std::wstring, std::map<std::wstring, std::wstring>> keys;  // upper-case names
};

Store& store() { return sessionPart<Store>(); }

// Key paths compare without case, with either separator, and without a trailing one.
std::wstring normaliseKey(std::wstring_view key) {
    std::wstring k = upperAscii(key);
    for (auto& c : k)
        if (c == L'/') c = L'\\';
    while (!k.empty() && k.back() == L'\\') k.pop_back();
    while (!k.empty() && k.front() == L'\\') k.erase(0, 1);
    return k;
}

struct OpenKey {
    std::wstring path;
};

bool keyExists(const std::wstring& path) {
    auto& keys = store().keys;
    auto it = keys.lower_bound(path);
    if (it == keys.end()) return false;
    return it->first == path || it->first.rfind(path + L"\\", 0) == 0;
}

}  // namespace

void setRegistryValue(std::wstring_view key, std::wstring_view name, std::wstring value) {
    std::lock_guard lock(store().mutex);
    store().keys[normaliseKey(key)][upperAscii(name)] = std::move(value);
}

std::optional<std::wstring> registryValue(std::wstring_view key, std::wstring_view name) {
    std::lock_guard lock(store().mutex);
    auto k = store().keys.find(normaliseKey(key));
    if (k == store().keys.end()) return std::nullopt;
    auto v = k->second.find(upperAscii(name));
    if (v == k->second.end()) return std::nullopt;
    return v->second;
}

}  // namespace host::win

using host::win::OpenKey;

extern "C" LSTATUS RegOpenKeyExW(HKEY hKey, LPCWSTR lpSubKey, DWORD, REGSAM, PHKEY phkResult) {
    return host::guarded(__func__, ERROR_OUTOFMEMORY, [&]() -> LSTATUS {
        if (!phkResult) return ERROR_INVALID_HANDLE;
        *phkResult = nullptr;
        std::wstring base;
        if (hKey == HKEY_LOCAL_MACHINE) base = L"";
        else return ERROR_FILE_NOT_FOUND;  // only the machine hive holds values here
        std::wstring path = host::win::normaliseKey(base + (lpSubKey ? lpSubKey : L""));
        {
            std::lock_guard lock(host::win::store().mutex);
            if (!host::win::keyExists(path)) return ERROR_FILE_NOT_FOUND;
        }
        *phkResult = reinterpret_cast<HKEY>(new OpenKey{path});
        return ERROR_SUCCESS;
    });
}

extern "C" LSTATUS RegQueryValueExW(HKEY hKey, LPCWSTR lpValueName, LPDWORD, LPDWORD lpType,
                                    LPBYTE lpData, LPDWORD lpcbData) {
    return host::guarded(__func__, ERROR_OUTOFMEMORY, [&]() -> LSTATUS {
        auto* key = reinterpret_cast<OpenKey*>(hKey);
        if (!key) return ERROR_INVALID_HANDLE;
        auto value = host::win::registryValue(key->path, lpValueName ? lpValueName : L"");
        if (!value) return ERROR_FILE_NOT_FOUND;
        if (lpType) *lpType = REG_SZ;
        DWORD needed = static_cast<DWORD>((value->size() + 1) * sizeof(WCHAR));
        if (!lpcbData) return lpData ? ERROR_INVALID_HANDLE : ERROR_SUCCESS;
        if (!lpData) {
            *lpcbData = needed;
            return ERROR_SUCCESS;
        }
        if (*lpcbData < needed) {
            *lpcbData = needed;
            return ERROR_MORE_DATA;
        }
        std::memcpy(lpData, value->c_str(), needed);
        *lpcbData = needed;
        return ERROR_SUCCESS;
    });
}

extern "C" LSTATUS RegCloseKey(HKEY hKey) {
    return host::guarded(__func__, ERROR_OUTOFMEMORY, [&]() -> LSTATUS {
        if (!hKey) return ERROR_INVALID_HANDLE;
        auto value = reinterpret_cast<uintptr_t>(hKey);
        if (value >= 0x80000000u && value <= 0x8000000Fu) return ERROR_SUCCESS;  // predefined keys
        delete reinterpret_cast<OpenKey*>(hKey);
        return ERROR_SUCCESS;
    });
}
