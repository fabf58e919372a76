// 湿空气状态点计算的对话框:
//   ci_dt       输入已知参数 (九种组合之一) 或在焓湿图上选点
//   i_dresdlg   状态点的全部参数, 可存入结果文件 wair002.txt
//   v_resdlg    查看结果文件 wair002.txt
//   introduce2  结果文件的说明

// 参数输入框: 宽 10 个字符, 最多输入 15 个字符.
state_input : edit_box {
    edit_width = 10;
    edit_limit = 15;
    fixed_width = true;
    alignment = right;
}

// 结果栏: 左边是参数名称, 右边是计算值.
result_label : text { width = 26; }
result_value : text { width = 12; alignment = right; }

ci_dt : dialog {
    label = "湿空气状态点计算";
    : row {
        : boxed_radio_column {
            label = "已知参数";
            : radio_button { key = "ihd";  label = "焓值 IH 与含湿量 D"; }
            : radio_button { key = "tfy";  label = "干球温度 T 与相对湿度 FY"; }
            : radio_button { key = "tts";  label = "干球温度 T 与湿球温度 TS"; }
            : radio_button { key = "td";   label = "干球温度 T 与含湿量 D"; }
            : radio_button { key = "ihts"; label = "焓值 IH (求饱和空气的湿球温度 TS)"; }
            : radio_button { key = "ttl";  label = "干球温度 T 与露点温度 TL"; }
            : radio_button { key = "fyd";  label = "相对湿度 FY 与含湿量 D"; }
            : radio_button { key = "dbfy"; label = "相对湿度 FY 与饱和含湿量 DB"; }
            : radio_button { key = "tldb"; label = "饱和含湿量 DB 与露点温度 TL"; }
        }
        : boxed_column {
            label = "输入参数";
            : state_input { key = "pressure"; label = "大气压力 B (kPa):"; value = "101.325"; }
            : state_input { key = "temp"; label = "干球温度 T (℃):"; }
            : state_input { key = "ts";   label = "湿球温度 TS (℃):"; }
            : state_input { key = "tl";   label = "露点温度 TL (℃):"; }
            : state_input { key = "d";    label = "含湿量 D (g/kg干空气):"; }
            : state_input { key = "db";   label = "饱和含湿量 DB (g/kg干空气):"; }
            : state_input { key = "fy";   label = "相对湿度 FY (%):"; }
            : state_input { key = "ih";   label = "焓值 IH (kJ/kg干空气):"; }
        }
    }
    : boxed_row {
        label = "焓湿图";
        : button { key = "sel_point"; label = "在焓湿图上选点(&P)..."; }
        : toggle { key = "symbol"; label = "在图上标出所选点"; value = "1"; }
    }
    : paragraph {
        : text_part { label = "先选已知参数的组合, 只有该组合用到的输入框可以填写."; }
        : text_part { label = "饱和含湿量 DB 是同一干球温度下饱和空气的含湿量."; }
        : text_part { label = "选点时按绘制焓湿图时的大气压力求状态."; }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "result"; label = "计算(&C)"; is_default = true; width = 10; fixed_width = true; }
        : spacer { width = 2; }
        : cancel_button { label = "关闭"; }
    }
    errtile;
}

i_dresdlg : dialog {
    label = "湿空气状态参数";
    : boxed_column {
        label = "计算结果";
        : row { : result_label { label = "干球温度 T (℃)"; }              : result_value { key = "t_value"; } }
        : row { : result_label { label = "湿球温度 TS (℃)"; }             : result_value { key = "ts_value"; } }
        : row { : result_label { label = "露点温度 TL (℃)"; }             : result_value { key = "tl_value"; } }
        : row { : result_label { label = "含湿量 D (g/kg干空气)"; }       : result_value { key = "d_value"; } }
        : row { : result_label { label = "相对湿度 FY (%)"; }             : result_value { key = "fy_value"; } }
        : row { : result_label { label = "焓值 IH (kJ/kg干空气)"; }       : result_value { key = "ih_value"; } }
        : row { : result_label { label = "水蒸气分压力 PQ (Pa)"; }        : result_value { key = "pq_value"; } }
        : row { : result_label { label = "饱和水蒸气分压力 PB (Pa)"; }    : result_value { key = "pb_value"; } }
        : row { : result_label { label = "比容 V (m³/kg干空气)"; }        : result_value { key = "v_value"; } }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "saveres"; label = "保存结果(&S)"; width = 12; fixed_width = true; }
        : spacer { width = 2; }
        : cancel_button { label = "关闭"; is_default = true; }
    }
    errtile;
}

v_resdlg : dialog {
    label = "状态点计算结果 (wair002.txt)";
    : list_box {
        key = "reslist";
        width = 64;
        height = 20;
        fixed_width_font = true;
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "resintr"; label = "结果说明(&I)..."; width = 14; fixed_width = true; }
        : spacer { width = 2; }
        ok_only;
    }
}

introduce2 : dialog {
    label = "状态点结果文件说明";
    : paragraph {
        : text_part { label = "每次在结果对话框中按\"保存结果\", 计算结果就添加到当前文件夹的"; }
        : text_part { label = "wair002.txt 中; 文件不存在时先建立, 并写上标题."; }
        : text_part { label = ""; }
        : text_part { label = "每个状态点一段, 以一行下划线分隔:"; }
        : text_part { label = "  (大气压B=... kPa )     计算所用的大气压力;"; }
        : text_part { label = "  已知...,求其它参数:     输入的已知参数, 保留两位小数;"; }
        : text_part { label = "                          在焓湿图上选点时为\"选取点求状态参数\";"; }
        : text_part { label = "  其下各行               未知参数的计算值, 保留三位小数."; }
        : text_part { label = ""; }
        : text_part { label = "参数符号: T 干球温度(℃), TS 湿球温度(℃), TL 露点温度(℃),"; }
        : text_part { label = "D 含湿量(g/kg干空气), DB 饱和含湿量(g/kg干空气),"; }
        : text_part { label = "FY 相对湿度(%), IH 焓值(kJ/kg干空气)."; }
        : text_part { label = "只知焓值时, 求得的是同焓值饱和空气的温度, 即湿球温度 TS."; }
        : text_part { label = ""; }
        : text_part { label = "文件可用任何文本编辑器打开 (UTF-8 编码); 删除该文件即重新开始记录."; }
    }
    ok_only;
}
