// 空气处理过程计算的对话框:
//   constpdlg    初始状态, 处理过程的种类与参数, 空气流量
//   constpres    终状态与热量、湿量、热湿比, 可存入结果文件 qres.txt
//   constphlp    说明

// 参数输入框: 宽 10 个字符, 最多输入 30 个字符.
process_input : edit_box {
    edit_width = 10;
    edit_limit = 30;
    fixed_width = true;
    alignment = right;
}

result_label : text { width = 24; }
result_value : text { width = 14; alignment = right; }

constpdlg : dialog {
    label = "空气处理过程计算";
    initial_focus = "t1";
    : row {
        : column {
            : boxed_column {
                label = "初始状态点";
                : process_input { key = "B";   label = "大气压力 B (kPa):"; }
                : process_input { key = "t1";  label = "干球温度 t1 (℃):"; }
                : process_input { key = "fy1"; label = "相对湿度 φ1 (%):"; }
                : row {
                    : button { key = "last_state"; label = "取最近的状态点(&L)"; }
                    : button { key = "sel_point"; label = "在焓湿图上选点(&P)..."; }
                }
            }
            : boxed_radio_column {
                label = "处理过程";
                : radio_button { key = "k_heat";  label = "等湿加热 (加热器)"; }
                : radio_button { key = "k_cool";  label = "等湿冷却 (干式冷却)"; }
                : radio_button { key = "k_dehum"; label = "冷却减湿, 给出终状态"; }
                : radio_button { key = "k_adp";   label = "冷却减湿, 给出机器露点"; }
                : radio_button { key = "k_adia";  label = "等焓加湿 (喷水室循环水)"; }
                : radio_button { key = "k_steam"; label = "等温加湿 (干蒸汽)"; }
                : radio_button { key = "k_eps";   label = "沿给定热湿比 ε 变化"; }
                : radio_button { key = "k_mix";   label = "与第二股空气混合"; }
            }
        }
        : column {
            : boxed_column {
                label = "过程参数";
                : toggle { key = "by_d"; label = "终点按含湿量给出"; }
                : process_input { key = "t2";  label = "终点干球温度 t2 (℃):"; }
                : process_input { key = "fy2"; label = "终点相对湿度 φ2 (%):"; }
                : process_input { key = "d2";  label = "终点含湿量 d2 (g/kg):"; }
                : process_input { key = "tl";  label = "机器露点温度 tL (℃):"; }
                : process_input { key = "eps"; label = "热湿比 ε (kJ/kg):"; }
                : process_input { key = "t3";  label = "第二股空气温度 (℃):"; }
                : process_input { key = "fy3"; label = "第二股空气相对湿度 (%):"; }
                : process_input { key = "g3";  label = "第二股空气流量 (kg/h):"; }
            }
            : boxed_column {
                label = "空气流量与图上标注";
                : process_input { key = "G"; label = "空气流量 G (kg/h):"; }
                : process_input { key = "label1"; label = "初始状态点标注:"; }
                : process_input { key = "label2"; label = "终状态点标注:"; }
                : process_input { key = "label3"; label = "第二股空气/机器露点标注:"; }
            }
        }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "cal"; label = "计算(&C)"; is_default = true; width = 10; fixed_width = true; }
        : button { key = "help"; label = "说明..."; width = 10; fixed_width = true; }
        : cancel_button { label = "退出"; }
    }
    errtile;
}

constpres : dialog {
    label = "空气处理过程计算结果";
    : text { key = "kind_name"; width = 40; }
    : boxed_column {
        label = "终状态点";
        : row { : result_label { label = "干球温度 t2 (℃)"; }      : result_value { key = "r_t"; } }
        : row { : result_label { label = "含湿量 d2 (g/kg干空气)"; } : result_value { key = "r_d"; } }
        : row { : result_label { label = "相对湿度 φ2 (%)"; }       : result_value { key = "r_fy"; } }
        : row { : result_label { label = "焓值 i2 (kJ/kg干空气)"; }  : result_value { key = "r_i"; } }
        : row { : result_label { label = "湿球温度 ts2 (℃)"; }     : result_value { key = "r_ts"; } }
    }
    : boxed_column {
        label = "过程";
        : row { : result_label { label = "热量 Q (kW, +为加热)"; }     : result_value { key = "r_q"; } }
        : row { : result_label { label = "湿量 W (kg/h, +为加湿)"; }   : result_value { key = "r_w"; } }
        : row { : result_label { label = "热湿比 ε (kJ/kg)"; }         : result_value { key = "r_eps"; } }
        : row { : result_label { label = "处理后空气流量 (kg/h)"; }    : result_value { key = "r_g"; } }
        : row { : result_label { label = "接触系数 (机器露点)"; }      : result_value { key = "r_cf"; } }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "saveres"; label = "保存结果(&S)"; width = 12; fixed_width = true; }
        : button { key = "i_d"; label = "画在焓湿图上(&D)"; width = 14; fixed_width = true; }
        : cancel_button { label = "关闭"; is_default = true; }
    }
    errtile;
}

constphlp : dialog {
    label = "空气处理过程计算说明";
    : paragraph {
        : text_part { label = "由初始状态点1、处理过程和空气流量G求终状态点2, 以及处理设备与空气"; }
        : text_part { label = "交换的热量Q和湿量W、过程的热湿比ε:"; }
        : text_part { label = "    Q = G·(i2 - i1)/3600 (kW, 正值为加热, 负值为冷却);"; }
        : text_part { label = "    W = G·(d2 - d1)/1000 (kg/h, 正值为加湿, 负值为减湿);"; }
        : text_part { label = "    ε = (i2 - i1)/(d2 - d1)·1000 (kJ/kg), 含湿量不变时为∞。"; }
        : text_part { label = " "; }
        : text_part { label = "初始状态可直接输入, 或取状态点计算(CI_DT)最近求得的点, 或在焓湿图上选点。"; }
        : text_part { label = "等湿加热、等湿冷却: 给出终点温度; 等湿冷却不能低于初始状态的露点。"; }
        : text_part { label = "冷却减湿: 给出终点温度与相对湿度(或含湿量); 或给出机器露点温度tL"; }
        : text_part { label = "    与终点相对湿度(一般取90-95%), 终点在初始点与饱和线上机器露点的连线上,"; }
        : text_part { label = "    接触系数为终点在连线上所占的比例。"; }
        : text_part { label = "等焓加湿(喷循环水)与等温加湿(干蒸汽): 给出终点相对湿度或含湿量, 最多到饱和。"; }
        : text_part { label = "沿热湿比ε变化: 给出ε与终点温度(或含湿量)。"; }
        : text_part { label = "混合: 给出第二股空气的温度、相对湿度与流量, 终点为混合点, Q与W为零。"; }
        : text_part { label = " "; }
        : text_part { label = "结果对话框中按\"保存结果\"把结果追加到当前目录的文件qres.txt中;"; }
        : text_part { label = "已绘制焓湿图时, 保存或按\"画在焓湿图上\"后过程画在图层ID_PROCESS上。"; }
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
