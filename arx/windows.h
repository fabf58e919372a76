// The Win32 subset the module uses: registry reading, windows found by title and their child
// controls, fonts, and threads. Sizes of the integer types are those of Windows.
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif

#define WINAPI
#define CALLBACK

typedef int BOOL;
typedef unsigned char BYTE;
typedef int32_t LONG;
typedef uint32_t DWORD;
typedef uint32_t UINT;
typedef wchar_t WCHAR;
typedef const WCHAR* LPCWSTR;
typedef WCHAR* LPWSTR;
typedef BYTE* LPBYTE;
typedef DWORD* LPDWORD;
typedef void* LPVOID;
typedef intptr_t LPARAM;
typedef uintptr_t WPARAM;
typedef intptr_t LRESULT;
typedef LONG LSTATUS;
typedef LONG REGSAM_LONG;
typedef DWORD REGSAM;

typedef struct HKEY__* HKEY;
typedef HKEY* PHKEY;
typedef struct HWND__* HWND;
typedef struct HFONT__* HFONT;
typedef void* HGDIOBJ;
typedef void* HANDLE;
typedef struct HINSTANCE__* HINSTANCE;

#define HKEY_CLASSES_ROOT ((HKEY)(uintptr_t)0x80000000)
#define HKEY_CURRENT_USER ((HKEY)(uintptr_t)0x80000001)
#define HKEY_LOCAL_MACHINE ((HKEY)(uintptr_t)0x80000002)
#define HKEY_USERS ((HKEY)(uintptr_t)0x80000003)

#define KEY_QUERY_VALUE 0x0001
#define KEY_READ 0x20019
#define KEY_ALL_ACCESS 0xF003F

#define REG_NONE 0
#define REG_SZ 1

#define ERROR_SUCCESS 0L
#define ERROR_FILE_NOT_FOUND 2L
#define ERROR_INVALID_HANDLE 6L
#define ERROR_OUTOFMEMORY 14L
#define ERROR_MORE_DATA 234L

#define WM_SETFONT 0x0030
#define WM_GETFONT 0x0031
#define WM_CLOSE 0x0010

#define SW_HIDE 0
#define SW_SHOW 5
#define MB_OK 0x0
#define MB_ICONINFORMATION 0x40
#define IDOK 1
#define IDCANCEL 2

#define FW_NORMAL 400
#define GB2312_CHARSET 134
#define OUT_DEFAULT_PRECIS 0
#define OUT_STRING_PRECIS 1
#define CLIP_STROKE_PRECIS 2
#define PROOF_QUALITY 2
#define FIXED_PITCH 1
#define FF_MODERN (3 << 4)

#define CP_ACP 0
#define CP_UTF8 65001

#define INFINITE 0xFFFFFFFF
#define WAIT_OBJECT_0 0
#define WAIT_TIMEOUT 258
#define WAIT_FAILED ((DWORD)0xFFFFFFFF)

typedef BOOL(CALLBACK* WNDENUMPROC)(HWND, LPARAM);
typedef DWORD(WINAPI* LPTHREAD_START_ROUTINE)(LPVOID);

#ifdef __cplusplus
extern "C" {
#endif

LSTATUS RegOpenKeyExW(HKEY hKey, LPCWSTR lpSubKey, DWORD ulOptions, REGSAM samDesired,
                      PHKEY phkResult);
LSTATUS RegQueryValueExW(HKEY hKey, LPCWSTR lpValueName, LPDWORD lpReserved, LPDWORD lpType,
                         LPBYTE lpData, LPDWORD lpcbData);
LSTATUS RegCloseKey(HKEY hKey);

HWND FindWindowW(LPCWSTR lpClassName, LPCWSTR lpWindowName);
BOOL EnumChildWindows(HWND hWndParent, WNDENUMPROC lpEnumFunc, LPARAM lParam);
LRESULT SendMessageW(HWND hWnd, UINT Msg, WPARAM wParam, LPARAM lParam);
BOOL IsWindow(HWND hWnd);
BOOL DestroyWindow(HWND hWnd);
int GetWindowTextW(HWND hWnd, LPWSTR lpString, int nMaxCount);
BOOL SetWindowTextW(HWND hWnd, LPCWSTR lpString);
HWND GetDesktopWindow(void);
HWND SetActiveWindow(HWND hWnd);
BOOL ShowWindow(HWND hWnd, int nCmdShow);
int MessageBoxW(HWND hWnd, LPCWSTR lpText, LPCWSTR lpCaption, UINT uType);
int GetWindowTextLengthW(HWND hWnd);

HFONT CreateFontW(int cHeight, int cWidth, int cEscapement, int cOrientation, int cWeight,
                  DWORD bItalic, DWORD bUnderline, DWORD bStrikeOut, DWORD iCharSet,
                  DWORD iOutPrecision, DWORD iClipPrecision, DWORD iQuality,
                  DWORD iPitchAndFamily, LPCWSTR pszFaceName);
BOOL DeleteObject(HGDIOBJ ho);

HANDLE CreateThread(void* lpThreadAttributes, size_t dwStackSize,
                    LPTHREAD_START_ROUTINE lpStartAddress, LPVOID lpParameter,
                    DWORD dwCreationFlags, LPDWORD lpThreadId);
DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds);
BOOL CloseHandle(HANDLE hObject);
void Sleep(DWORD dwMilliseconds);

// Code-page conversion; the host knows CP_ACP as code page 936 (GB2312/GBK).
int WideCharToMultiByte(UINT CodePage, DWORD dwFlags, LPCWSTR lpWideCharStr, int cchWideChar,
                        char* lpMultiByteStr, int cbMultiByte, const char* lpDefaultChar,
                        BOOL* lpUsedDefaultChar);
int MultiByteToWideChar(UINT CodePage, DWORD dwFlags, const char* lpMultiByteStr, int cbMultiByte,
                        LPWSTR lpWideCharStr, int cchWideChar);

#ifdef __cplusplus
}
#endif

#define FindWindow FindWindowW
#define SendMessage SendMessageW
#define MessageBox MessageBoxW
#define CreateFont CreateFontW
#define RegOpenKeyEx RegOpenKeyExW
#define RegQueryValueEx RegQueryValueExW
