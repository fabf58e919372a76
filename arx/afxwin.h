// The MFC subset the module's dialog classes use: a wide string, windows, a modeless dialog
// on a dialog resource, the standard controls, data exchange and message maps. Control
// functions send the control messages of the Win32 subset, as the platform's do.
#pragma once

#include <string>

#include "windows.h"

#define PASCAL
#define afx_msg

typedef uintptr_t UINT_PTR;
typedef unsigned short WORD;
typedef const WCHAR* LPCTSTR;

#define WM_COMMAND 0x0111
#define CB_GETCOUNT 0x0146
#define CB_GETCURSEL 0x0147
#define CB_ADDSTRING 0x0143
#define CB_RESETCONTENT 0x014B
#define CB_SETCURSEL 0x014E
#define LB_ADDSTRING 0x0180
#define LB_RESETCONTENT 0x0184
#define LB_SETCURSEL 0x0186
#define LB_GETCURSEL 0x0188
#define LB_GETCOUNT 0x018B
#define BM_GETCHECK 0x00F0
#define BM_SETCHECK 0x00F1
#define BST_UNCHECKED 0
#define BST_CHECKED 1
#define CBN_SELCHANGE 1
#define LBN_SELCHANGE 1
#define BN_CLICKED 0
#define EN_CHANGE 0x0300
#define MAKEWPARAM(low, high) ((WPARAM)(((DWORD)(WORD)(low)) | (((DWORD)(WORD)(high)) << 16)))


// The platform's string class, reduced to what the dialogs use.
class CString {
public:
    CString() = default;
    CString(LPCTSTR text) : text_(text ? text : L"") {}
    CString(const std::wstring& text) : text_(text) {}
    operator LPCTSTR() const { return text_.c_str(); }
    int GetLength() const { return static_cast<int>(text_.size()); }
    BOOL IsEmpty() const { return text_.empty(); }
    void Empty() { text_.clear(); }
    bool operator==(LPCTSTR other) const { return text_ == (other ? other : L""); }

private:
    std::wstring text_;
};

class CCmdTarget;
typedef void (CCmdTarget::*AFX_PMSG)(void);

enum AfxSig { AfxSig_end = 0, AfxSigCmd_v = 1 };

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    UINT_PTR nSig;
    AFX_PMSG pfn;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

class CObject {
public:
    virtual ~CObject() = default;
};

class CCmdTarget : public CObject {
public:
    // Runs the message-map handler for notification NCODE of control NID; FALSE when none.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pHandlerInfo);

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

class CDataExchange;

class CWnd : public CCmdTarget {
public:
    HWND m_hWnd = nullptr;

    CWnd() = default;
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    HWND GetSafeHwnd() const { return m_hWnd; }
    static CWnd* PASCAL GetDesktopWindow();
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);

    void SetWindowText(LPCTSTR lpszString) { ::SetWindowTextW(m_hWnd, lpszString); }
    void GetWindowText(CString& rString) const;
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    CWnd* SetActiveWindow();
    virtual BOOL DestroyWindow();
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK) {
        return ::MessageBoxW(m_hWnd, lpszText, lpszCaption, nType);
    }
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    // The window procedure's share: WM_COMMAND from a child control.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void PostNcDestroy();
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;

    friend struct CWndAccess;  // the host's window procedure
};

class CDialog : public CWnd {
public:
    CDialog() = default;
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    // Creates the modeless dialog of resource NIDTEMPLATE; FALSE when it cannot.
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL OnInitDialog();

protected:
    virtual void OnOK();
    virtual void OnCancel();
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;

    UINT m_nIDHelp = 0;
    CWnd* m_pParentWnd = nullptr;
};

class CComboBox : public CWnd {
public:
    int AddString(LPCTSTR s) { return (int)SendMessage(CB_ADDSTRING, 0, (LPARAM)s); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int GetCount() { return (int)SendMessage(CB_GETCOUNT); }
    int GetCurSel() { return (int)SendMessage(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return (int)SendMessage(CB_SETCURSEL, (WPARAM)nSelect); }
};

class CListBox : public CWnd {
public:
    int AddString(LPCTSTR s) { return (int)SendMessage(LB_ADDSTRING, 0, (LPARAM)s); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    int GetCount() { return (int)SendMessage(LB_GETCOUNT); }
    int GetCurSel() { return (int)SendMessage(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return (int)SendMessage(LB_SETCURSEL, (WPARAM)nSelect); }
};

class CButton : public CWnd {
public:
    int GetCheck() { return (int)SendMessage(BM_GETCHECK); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, (WPARAM)nCheck); }
};

class CEdit : public CWnd {};
class CStatic : public CWnd {};

class CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}
    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
};

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);

#define DECLARE_MESSAGE_MAP()                                \
protected:                                                   \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();     \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                            \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }     \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() {                              \
        using ThisClass [[maybe_unused]] = theClass;                                      \
        typedef baseClass TheBaseClass;                                                   \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {
#define END_MESSAGE_MAP()                                                                 \
    {0, 0, 0, 0, AfxSig_end, (AFX_PMSG)0}};                                               \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap,               \
                                          &_messageEntries[0]};                           \
    return &messageMap;                                                                   \
    }

#define ON_CONTROL(wNotifyCode, id, memberFxn) \
    {WM_COMMAND, (WORD)wNotifyCode, (WORD)id, (WORD)id, AfxSigCmd_v, static_cast<AFX_PMSG>(memberFxn)},
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)

// The dialog resources of a module: what the resource compiler makes of a DIALOGEX script.
// A module lists its templates in one table that the host reads when a dialog is created.
struct DLGITEM_RESOURCE {
    LPCWSTR className;  // "ComboBox", "ListBox", "Edit", "Static", "Button"
    int id;
    LPCWSTR name;       // the control's symbolic name in the resource script, lower case
    LPCWSTR text;
    BOOL autoRadio;     // a BS_AUTORADIOBUTTON: clicking checks it and clears its group
};
struct DLG_RESOURCE {
    UINT id;
    LPCWSTR caption;
    const DLGITEM_RESOURCE* items;
    int itemCount;
};
// Registers a module's dialog resources for as long as the module is loaded.
void AfxRegisterDialogResources(const DLG_RESOURCE* resources, int count);
void AfxUnregisterDialogResources(const DLG_RESOURCE* resources);
