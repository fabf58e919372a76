// 空气处理过程的对话框.
//   airmixdlg   两股空气的混合

mix_input : edit_box {
    edit_width = 10;
    edit_limit = 15;
    fixed_width = true;
    alignment = right;
}

airmixdlg : dialog {
    label = "两股空气混合";
    : mix_input { key = "press"; label = "大气压力 B (kPa):"; }
    : row {
        : boxed_column {
            label = "A 点空气";
            : mix_input { key = "i_value1"; label = "焓值 iA (kJ/kg):"; }
            : mix_input { key = "d_value1"; label = "含湿量 dA (g/kg):"; }
            : mix_input { key = "g_value1"; label = "风量 GA (kg/h):"; }
        }
        : boxed_column {
            label = "B 点空气";
            : mix_input { key = "i_value2"; label = "焓值 iB (kJ/kg):"; }
            : mix_input { key = "d_value2"; label = "含湿量 dB (g/kg):"; }
            : mix_input { key = "g_value2"; label = "风量 GB (kg/h):"; }
        }
    }
    : paragraph {
        : text_part { label = "混合点 M 按风量加权:"; }
        : text_part { label = "  iM = (GA·iA + GB·iB) / (GA + GB)"; }
        : text_part { label = "  dM = (GA·dA + GB·dB) / (GA + GB)"; }
        : text_part { label = "大气压力应在 70 至 180 kPa 之间 (含两端)."; }
        : text_part { label = "计算后可在已绘制的焓湿图上画出混合过程线."; }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "procres"; label = "计算(&C)"; is_default = true; width = 10; fixed_width = true; }
        : spacer { width = 2; }
        : button { key = "i_d"; label = "焓湿图(&I)"; is_enabled = false; width = 10; fixed_width = true; }
        : spacer { width = 2; }
        : cancel_button { label = "关闭"; }
    }
    errtile;
}
