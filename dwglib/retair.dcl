// Return-air systems: primary return (一次回风) and secondary return (二次回风), summer and
// winter; the result dialog and the help text.

ra_value : edit_box { edit_width = 12; edit_limit = 30; }
ra_label : text { width = 18; fixed_width = true; }

retairdlg : dialog {
    label = "一次回风与二次回风系统计算";
    initial_focus = "tn_value";
    : row {
        : boxed_radio_row {
            label = "系统形式";
            : radio_button { key = "sys1"; label = "一次回风"; }
            : radio_button { key = "sys2"; label = "二次回风"; }
        }
        : boxed_radio_row {
            label = "季节";
            : radio_button { key = "summer"; label = "夏季"; }
            : radio_button { key = "winter"; label = "冬季"; }
        }
    }
    : row {
        : ra_label { label = "大气压(kPa):"; }
        : ra_value { key = "B"; }
    }
    : row {
        : boxed_column {
            label = "室内状态 N";
            : row { : ra_label { label = "干球温度(℃):"; } : ra_value { key = "tn_value"; } }
            : row { : ra_label { label = "相对湿度(%):"; } : ra_value { key = "rhn_value"; } }
        }
        : boxed_column {
            label = "室外状态 W";
            : row { : ra_label { label = "干球温度(℃):"; } : ra_value { key = "tw_value"; } }
            : radio_row {
                : radio_button { key = "ow_ts"; label = "给湿球温度"; }
                : radio_button { key = "ow_fy"; label = "给相对湿度"; }
            }
            : row { : ra_label { key = "ow_text"; label = "湿球温度(℃):"; } : ra_value { key = "ow_value"; } }
        }
    }
    : row {
        : boxed_column {
            label = "室内负荷";
            : row { : ra_label { label = "余热量(kW):"; } : ra_value { key = "q_value"; } }
            : radio_row {
                : radio_button { key = "load_w"; label = "给余湿量"; }
                : radio_button { key = "load_e"; label = "给热湿比"; }
            }
            : row { : ra_label { key = "w_text"; label = "余湿量(kg/h):"; } : ra_value { key = "w_value"; } }
        }
        : boxed_column {
            label = "新风";
            : radio_row {
                : radio_button { key = "fresh_m"; label = "新风比"; }
                : radio_button { key = "fresh_g"; label = "新风量"; }
            }
            : row { : ra_label { key = "m_text"; label = "新风比(%):"; } : ra_value { key = "m_value"; } }
        }
    }
    : row {
        : boxed_column {
            label = "送风状态 O";
            : radio_row {
                : radio_button { key = "sup_dt"; label = "送风温差"; }
                : radio_button { key = "sup_dew"; label = "机器露点送风"; }
                : radio_button { key = "sup_g"; label = "送风量"; }
            }
            : row { : ra_label { key = "sup_text"; label = "送风温差(℃):"; } : ra_value { key = "sup_value"; } }
            : radio_row {
                label = "机器露点相对湿度";
                : radio_button { key = "rhl95"; label = "95%"; }
                : radio_button { key = "rhl90"; label = "90%"; }
            }
        }
        : boxed_column {
            label = "冬季";
            : row { : ra_label { label = "新风预热温度(℃):"; } : ra_value { key = "tp_value"; } }
            : radio_row {
                : radio_button { key = "hum_ad"; label = "喷水绝热加湿"; }
                : radio_button { key = "hum_st"; label = "喷蒸汽加湿"; }
            }
            : row { : ra_label { label = "二次回风量(kg/h):"; } : ra_value { key = "g2_value"; } }
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

retairres : dialog {
    label = "回风系统计算结果";
    : text { key = "title"; width = 40; }
    : list_box {
        key = "reslist";
        width = 84;
        height = 20;
        fixed_width_font = true;
    }
    errtile;
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "saveres"; label = "保存结果"; width = 10; fixed_width = true; }
        : button { key = "i_d"; label = "画在焓湿图上"; width = 14; fixed_width = true; }
        : button { key = "accept"; label = "关闭"; is_default = true; is_cancel = true; width = 10; fixed_width = true; }
    }
}

retairhelp : dialog {
    label = "回风系统计算说明";
    : paragraph {
        : text_part { label = "由室内状态N、室外状态W、室内余热量Q与余湿量W(或热湿比ε)、新风比m(或新风量)"; }
        : text_part { label = "和送风条件,求各状态点、送风量及冷热负荷。ε = Q×3600/W (kJ/kg)。"; }
        : text_part { label = " "; }
        : text_part { label = "夏季一次回风: 送风状态O在过N的ε线上, tO = tN - Δt0;机器露点L在φL线上, dL = dO;"; }
        : text_part { label = "    G = Q/(iN - iO)×3600;N与W按新风比混合得C;冷量 Qc = G(iC - iL)/3600,"; }
        : text_part { label = "    再热量 Qr = G(iO - iL)/3600,凝结水量 G(dC - dL)/1000。"; }
        : text_part { label = "    选\"机器露点送风\"时O即ε线与φL线的交点L,不再热。"; }
        : text_part { label = "夏季二次回风: L在NO连线延长线与φL线的交点,L与二次回风N混合即得O,不再热;"; }
        : text_part { label = "    经表冷器风量 GL = G(iN - iO)/(iN - iL),二次回风量 G2 = G - GL;"; }
        : text_part { label = "    新风与一次回风混合得C1,冷量 Qc = GL(iC1 - iL)/3600,并与同条件一次回风系统比较。"; }
        : text_part { label = " "; }
        : text_part { label = "冬季: 房间失热时余热量填负值。送风温差为 tO - tN,或直接给出送风量(通常与夏季相同)。"; }
        : text_part { label = "    室外温度低于\"新风预热温度\"时新风先预热到该温度(W')。"; }
        : text_part { label = "    喷水绝热加湿: 混合点焓值低于L时先加热到iL(D),再等焓加湿到L,再热到O;"; }
        : text_part { label = "    喷蒸汽加湿: 混合点加热后等温加湿。"; }
        : text_part { label = "    二次回风按夏季设计的二次回风量,加湿后与回风二次混合得C2,再热到O。"; }
        : text_part { label = " "; }
        : text_part { label = "不能实现的工况(如ε线与露点线无交点、冷量或再热量为负、室外状态超出饱和线)给出提示。"; }
        : text_part { label = "结果对话框中\"保存结果\"把结果追加到当前目录的qres.txt;已画出焓湿图时可把系统画在图上。"; }
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
