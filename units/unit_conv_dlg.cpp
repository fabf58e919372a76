#include "units/unit_conv_dlg.h"

#include <string>

#include "units/unit_conversion.h"

namespace vrn2::units {

CUnitConvDlg::CUnitConvDlg(CWnd* pParent) : CDialog(IDD, pParent) {}

void CUnitConvDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CATEGORY, m_category);
    DDX_Control(pDX, IDC_PAIRS, m_pairs);
    DDX_Control(pDX, IDC_DIR1, m_dir1);
    DDX_Control(pDX, IDC_DIR2, m_dir2);
    DDX_Control(pDX, IDC_UNIT1, m_unit1);
    DDX_Control(pDX, IDC_UNIT2, m_unit2);
    DDX_Control(pDX, IDC_FACTOR, m_factor);
    DDX_Text(pDX, IDC_PENC1, m_penc1);
    DDX_Text(pDX, IDC_PENC2, m_penc2);
}

BEGIN_MESSAGE_MAP(CUnitConvDlg, CDialog)
    ON_CBN_SELCHANGE(IDC_CATEGORY, &CUnitConvDlg::OnSelchangeCategory)
    ON_LBN_SELCHANGE(IDC_PAIRS, &CUnitConvDlg::OnSelchangePairs)
    ON_BN_CLICKED(IDC_DIR1, &CUnitConvDlg::OnDir1)
    ON_BN_CLICKED(IDC_DIR2, &CUnitConvDlg::OnDir2)
    ON_EN_CHANGE(IDC_PENC1, &CUnitConvDlg::OnChangePenc1)
    ON_EN_CHANGE(IDC_PENC2, &CUnitConvDlg::OnChangePenc2)
END_MESSAGE_MAP()

BOOL CUnitConvDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    for (const wchar_t* name : kCategoryNames) m_category.AddString(name);
    m_category.SetCurSel(m_nCategory);
    m_dir1.SetCheck(BST_CHECKED);
    FillPairs();
    return TRUE;
}

// The window lives on its own: when it is destroyed, the object goes with it.
void CUnitConvDlg::PostNcDestroy() { delete this; }

void CUnitConvDlg::FillPairs() {
    m_pairs.ResetContent();
    for (const UnitPair& pair : categoryPairs(m_nCategory)) m_pairs.AddString(std::wstring(pair.item).c_str());
    m_pairs.SetCurSel(0);
    ShowPair(LabelPath::CategoryOpened);
}

void CUnitConvDlg::ShowPair(LabelPath path) {
    int item = m_pairs.GetCurSel();
    auto pairs = categoryPairs(m_nCategory);
    if (item < 0 || static_cast<size_t>(item) >= pairs.size()) return;
    const UnitPair& pair = pairs[static_cast<size_t>(item)];
    m_unit1.SetWindowText(std::wstring(pair.unitLabel).c_str());
    m_unit2.SetWindowText(std::wstring(pair.siLabel).c_str());
    m_factor.SetWindowText(std::wstring(factorText(m_nCategory, item, m_direction, path)).c_str());
}

void CUnitConvDlg::OnSelchangeCategory() {
    int category = m_category.GetCurSel();
    if (category < 0 || category >= kCategoryCount) return;
    m_nCategory = category;
    FillPairs();
}

void CUnitConvDlg::OnSelchangePairs() { ShowPair(LabelPath::PairSelected); }

void CUnitConvDlg::SetDirection(Direction direction) {
    m_direction = direction;
    ShowPair(LabelPath::DirectionChanged);
}

void CUnitConvDlg::OnDir1() { SetDirection(Direction::FromFirst); }
void CUnitConvDlg::OnDir2() { SetDirection(Direction::FromSecond); }

// Typing converts from the edit the direction names as the source; typing into the other one
// is the designer's own business.
void CUnitConvDlg::OnChangePenc1() {
    if (!m_bConverting && m_direction == Direction::FromFirst) Convert();
}

void CUnitConvDlg::OnChangePenc2() {
    if (!m_bConverting && m_direction == Direction::FromSecond) Convert();
}

void CUnitConvDlg::Convert() {
    UpdateData(TRUE);
    CString label;
    m_factor.GetWindowText(label);
    const CString& source = m_direction == Direction::FromFirst ? m_penc1 : m_penc2;
    Conversion result = convert(m_nCategory, m_pairs.GetCurSel(), m_direction,
                                static_cast<LPCTSTR>(source), static_cast<LPCTSTR>(label));
    if (!result.converted) {
        MessageBox(result.message.c_str());
        return;
    }
    (m_direction == Direction::FromFirst ? m_penc2 : m_penc1) = CString(result.text);
    m_bConverting = true;
    UpdateData(FALSE);
    m_bConverting = false;
}

}  // namespace vrn2::units
