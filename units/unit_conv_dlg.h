// The unit conversion window: a modeless dialog that converts a value typed into either edit
// between a unit and its SI unit, through the factor shown on its label.
#pragma once

#include "afxwin.h"
#include "units/unit_conv_resource.h"
#include "units/unit_factors.h"

namespace vrn2::units {

class CUnitConvDlg : public CDialog {
public:
    enum { IDD = IDD_UNITCONV };

    explicit CUnitConvDlg(CWnd* pParent = nullptr);
    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void PostNcDestroy() override;

    afx_msg void OnSelchangeCategory();
    afx_msg void OnSelchangePairs();
    afx_msg void OnDir1();
    afx_msg void OnDir2();
    afx_msg void OnChangePenc1();
    afx_msg void OnChangePenc2();
    DECLARE_MESSAGE_MAP()

private:
    void FillPairs();
    void ShowPair(LabelPath path);
    void SetDirection(Direction direction);
    void Convert();

    CComboBox m_category;
    CListBox m_pairs;
    CButton m_dir1;
    CButton m_dir2;
    CStatic m_unit1;
    CStatic m_unit2;
    CStatic m_factor;
    CString m_penc1;
    CString m_penc2;

    int m_nCategory = 0;
    Direction m_direction = Direction::FromFirst;
    bool m_bConverting = false;  // the result written into an edit is not typed input
};

}  // namespace vrn2::units
