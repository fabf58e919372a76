// Supply-air calculation: the supply-air mass flow and the supply-air state of a conditioned
// room from its indoor design state, its cooling and moisture loads and the supply
// temperature difference; the result dialog; viewing and deleting the result file gscal.txt.

gs_caldlg : dialog {
    label = "送风量与送风状态计算";
    initial_focus = "tn_value";
    : row {
        : text { label = "  大气压(kPa):  "; width = 20; fixed_width = true; }
        : edit_box { key = "B"; edit_width = 12; edit_limit = 30; }
    }
    : boxed_column {
        label = "室内设计状态";
        : row {
            : text { label = "  干球温度(℃):  "; width = 20; fixed_width = true; }
            : edit_box { key = "tn_value"; edit_width = 12; edit_limit = 30; }
        }
        : row {
            : text { label = "  相对湿度(%):  "; width = 20; fixed_width = true; }
            : edit_box { key = "rhn_value"; edit_width = 12; edit_limit = 30; }
        }
    }
    : boxed_column {
        label = "负荷与送风温差";
        : row {
            : toggle { key = "q"; label = "按总热冷负荷计算"; }
            : toggle { key = "w"; label = "给出湿负荷"; }
        }
        : row {
            : text { key = "q_text"; label = "  总热冷负荷(kW):  "; width = 20; fixed_width = true; }
            : edit_box { key = "q_value"; edit_width = 12; edit_limit = 30; }
        }
        : row {
            : text { label = "  湿负荷(kg/h):  "; width = 20; fixed_width = true; }
            : edit_box { key = "w_value"; edit_width = 12; edit_limit = 30; }
        }
        : row {
            : text { label = "  送风温差(℃):  "; width = 20; fixed_width = true; }
            : edit_box { key = "dt_value"; edit_width = 12; edit_limit = 30; }
        }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "cal"; label = "计算"; is_default = true; width = 10; fixed_width = true; }
        : button { key = "help"; label = "说明..."; width = 10; fixed_width = true; }
        : button { key = "cancel"; label = "退出"; is_cancel = true; width = 10; fixed_width = true; }
    }
    errtile;
}

gscalres : dialog {
    label = "送风量与送风状态计算结果";
    : boxed_column {
        label = "送风量";
        : row {
            : text { label = "送风量(kg/h):"; width = 18; fixed_width = true; }
            : text { key = "Ga"; width = 16; }
        }
    }
    : boxed_column {
        label = "送风状态";
        : row {
            : text { label = "干球温度(℃):"; width = 18; fixed_width = true; }
            : text { key = "t_value"; width = 16; }
        }
        : row {
            : text { label = "湿球温度(℃):"; width = 18; fixed_width = true; }
            : text { key = "ts_value"; width = 16; }
        }
        : row {
            : text { label = "含湿量(g/kg):"; width = 18; fixed_width = true; }
            : text { key = "d_value"; width = 16; }
        }
        : row {
            : text { label = "焓值(kJ/kg):"; width = 18; fixed_width = true; }
            : text { key = "i_value"; width = 16; }
        }
        : row {
            : text { label = "相对湿度(%):"; width = 18; fixed_width = true; }
            : text { key = "rh_value"; width = 16; }
        }
    }
    errtile;
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "saveres"; label = "保存结果"; width = 10; fixed_width = true; }
        : button { key = "accept"; label = "关闭"; is_default = true; is_cancel = true; width = 10; fixed_width = true; }
    }
}

intro_scproofcal : dialog {
    label = "送风量与送风状态计算说明";
    : paragraph {
        : text_part { label = "由室内设计状态、冷负荷、湿负荷和送风温差求送风量G与送风状态O。"; }
        : text_part { label = "送风温度 to = 室内干球温度 - 送风温差。"; }
        : text_part { label = " "; }
        : text_part { label = "一、选\"按总热冷负荷计算\"(须同时给出湿负荷):"; }
        : text_part { label = "    热湿比 e = Q / (1000·W/3600) (kJ/g);"; }
        : text_part { label = "    送风状态点在过室内状态点N、热湿比为e的过程线上,温度为to;"; }
        : text_part { label = "    G = Q / (iN - iO) × 3600 (kg/h)。"; }
        : text_part { label = "二、不选总热负荷,给出显热冷负荷与湿负荷:"; }
        : text_part { label = "    G = Qx / (1.01 × Δt) × 3600;  dO = dN - 1000·W / G。"; }
        : text_part { label = "三、只给出显热冷负荷:只能求出送风量与送风温度。"; }
        : text_part { label = " "; }
        : text_part { label = "输入范围:大气压50-200kPa,干球温度0-100℃,相对湿度0-100%(含边界值)。"; }
        : text_part { label = "冷负荷单位kW,湿负荷单位kg/h,送风温差单位℃。"; }
        : text_part { label = "结果对话框中按\"保存结果\"可把结果追加到当前目录的文件gscal.txt中。"; }
    }
    : button {
        key = "accept";
        label = "确定";
        is_default = true;
        is_cancel = true;
        width = 10;
        fixed_width = true;
        alignment = centered;
    }
}

v_resdlg : dialog {
    label = "送风量与送风状态计算结果 (gscal.txt)";
    : list_box {
        key = "reslist";
        width = 104;
        height = 24;
        fixed_width_font = true;
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "resintr"; label = "说明..."; width = 10; fixed_width = true; }
        : button { key = "accept"; label = "关闭"; is_default = true; is_cancel = true; width = 10; fixed_width = true; }
    }
}

introduce3 : dialog {
    label = "计算结果文件说明";
    : paragraph {
        : text_part { label = "列表显示当前目录中的文件gscal.txt,即每次在送风量与送风状态"; }
        : text_part { label = "计算结果中按\"保存结果\"追加的记录,最早的在前。"; }
        : text_part { label = "每条记录以横线开始,列出大气压、输入参数和计算结果。"; }
        : text_part { label = "注意:\"含湿量(kg/kg)\"一行的数值单位为g/kg。"; }
        : text_part { label = "超过99个字符的行分成几行显示。"; }
        : text_part { label = "不再需要这些结果时,可用命令GSDELRES删除此文件。"; }
    }
    : button {
        key = "accept";
        label = "确定";
        is_default = true;
        is_cancel = true;
        width = 10;
        fixed_width = true;
        alignment = centered;
    }
}

delwarming : dialog {
    label = "删除计算结果";
    : paragraph {
        : text_part { label = "是否真的删除已保存的送风量与送风状态计算结果?"; }
        : text_part { label = "(当前目录中的文件gscal.txt,删除后不能恢复)"; }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "ok"; label = "删除"; width = 10; fixed_width = true; }
        : button { key = "cancel"; label = "取消"; is_default = true; is_cancel = true; width = 10; fixed_width = true; }
    }
}
