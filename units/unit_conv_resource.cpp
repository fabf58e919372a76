// The dialog resource of the unit conversion window and its strings, registered while the
// module is loaded.
#include "afxwin.h"
#include "units/unit_conv_resource.h"

namespace vrn2::units {

const wchar_t* const kCategoryNames[11] = {
    L"温度", L"导热系数", L"长度", L"面积", L"体积", L"速度",
    L"质量", L"压力", L"密度", L"比热", L"功率",
};

namespace {

const DLGITEM_RESOURCE kUnitConvItems[] = {
    {L"Static", -1, L"", L"类别", FALSE},
    {L"ComboBox", IDC_CATEGORY, L"category", L"", FALSE},
    {L"ListBox", IDC_PAIRS, L"pairs", L"", FALSE},
    {L"Button", IDC_DIR1, L"dir1", L"数据1 ==> 数据2", TRUE},
    {L"Button", IDC_DIR2, L"dir2", L"数据2 ==> 数据1", TRUE},
    {L"Static", -1, L"", L"数据1", FALSE},
    {L"Edit", IDC_PENC1, L"penc1", L"", FALSE},
    {L"Static", IDC_UNIT1, L"unit1", L"", FALSE},
    {L"Static", -1, L"", L"数据2", FALSE},
    {L"Edit", IDC_PENC2, L"penc2", L"", FALSE},
    {L"Static", IDC_UNIT2, L"unit2", L"", FALSE},
    {L"Static", -1, L"", L"系数", FALSE},
    {L"Static", IDC_FACTOR, L"factor", L"", FALSE},
    {L"Button", IDCANCEL, L"cancel", L"关闭", FALSE},
};

const DLG_RESOURCE kDialogs[] = {
    {IDD_UNITCONV, L"单位换算", kUnitConvItems,
     static_cast<int>(sizeof kUnitConvItems / sizeof kUnitConvItems[0])},
};

// Resources belong to the module image: present from load to unload.
struct ResourceRegistration {
    ResourceRegistration() { AfxRegisterDialogResources(kDialogs, 1); }
    ~ResourceRegistration() { AfxUnregisterDialogResources(kDialogs); }
    ResourceRegistration(const ResourceRegistration&) = delete;
    ResourceRegistration& operator=(const ResourceRegistration&) = delete;
} g_registration;

}  // namespace
}  // namespace vrn2::units
