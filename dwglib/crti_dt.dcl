// 焓湿图的对话框:
//   crti_dtdlg   绘制焓湿图: 大气压力, 干球温度与含湿量范围, 图幅
//   vi_dtbldlg   查看图上的状态点表
//   i_dhlpdlg    焓湿图各命令的说明

chart_input : edit_box {
    edit_width = 8;
    edit_limit = 15;
    fixed_width = true;
    alignment = right;
}

crti_dtdlg : dialog {
    label = "绘制焓湿图";
    : boxed_column {
        label = "大气压力";
        : chart_input { key = "pressure"; label = "大气压力 B (kPa):"; value = "101.325"; }
    }
    : boxed_column {
        label = "参数范围";
        : row {
            : chart_input { key = "t_min"; label = "干球温度 t (℃) 从"; value = "-10"; }
            : chart_input { key = "t_max"; label = "到"; value = "50"; }
        }
        : row {
            : chart_input { key = "d_min"; label = "含湿量 d (g/kg干空气) 从"; value = "0"; }
            : chart_input { key = "d_max"; label = "到"; value = "30"; }
        }
    }
    : boxed_column {
        label = "图幅 (图形单位)";
        : row {
            : chart_input { key = "width"; label = "宽:"; value = "300"; }
            : chart_input { key = "height"; label = "高:"; value = "400"; }
        }
    }
    : paragraph {
        : text_part { label = "大气压力 50-200 kPa, 干球温度 -40~80 ℃, 含湿量 0~100 g/kg,"; }
        : text_part { label = "图宽和图高 50-5000. 按\"绘图\"后在图中点取焓湿图的左下角."; }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "accept"; label = "绘图(&D)"; is_default = true; width = 10; fixed_width = true; }
        : spacer { width = 2; }
        : button { key = "help"; label = "说明(&H)..."; width = 10; fixed_width = true; }
        : spacer { width = 2; }
        : cancel_button { label = "取消"; }
    }
    errtile;
}

vi_dtbldlg : dialog {
    label = "焓湿图上的状态点";
    : list_box {
        key = "ptlist";
        width = 72;
        height = 16;
        fixed_width_font = true;
    }
    : text { key = "pressure"; width = 40; }
    ok_only;
}

i_dhlpdlg : dialog {
    label = "焓湿图说明";
    : paragraph {
        : text_part { label = "c:crti_dt  绘制焓湿图 (i-d 图)."; }
        : text_part { label = "  给出大气压力、干球温度和含湿量的范围及图幅, 按\"绘图\"后点取图的左下角."; }
        : text_part { label = "  图中所有曲线都按所给大气压力计算; 高原地区请输入当地大气压力."; }
        : text_part { label = "  含湿量 d 为横坐标 (竖线), 等焓线 i 为斜线, 等温线 t 近于水平,"; }
        : text_part { label = "  另有饱和线 (φ=100%) 和相对湿度 10%~90% 的等 φ 线. 各类线在各自的图层上:"; }
        : text_part { label = "  ID_FRAME 图框, ID_D 等含湿量线, ID_I 等焓线, ID_T 等温线,"; }
        : text_part { label = "  ID_FY 等相对湿度线, ID_SAT 饱和线, ID_TEXT 文字, ID_POINT 状态点与状态点表."; }
        : text_part { label = ""; }
        : text_part { label = "在图上求状态: 命令 c:ci_dt 中按\"在焓湿图上选点\", 点取图中一点即得其全部参数;"; }
        : text_part { label = "  选点时按绘图时的大气压力计算. 命令 c:airmix 中按\"i_d\", 在图上画出"; }
        : text_part { label = "  两股空气的状态点 A、B, 混合点 M 及混合过程线 A-B."; }
        : text_part { label = ""; }
        : text_part { label = "c:crti_dtbl  在焓湿图右侧绘制状态点表 (名称, t, ts, d, φ, i, v),"; }
        : text_part { label = "  表中各点在图上标出并注上名称. 表中包括本次计算过的状态点,"; }
        : text_part { label = "  之后可继续在图上点取状态点, 回车结束."; }
        : text_part { label = "c:vi_dtbl  在对话框中列出状态点表."; }
        : text_part { label = ""; }
        : text_part { label = "说明: 焓 i 的单位 kJ/kg干空气, 含湿量 d 的单位 g/kg干空气, 比容 v 的单位 m³/kg干空气."; }
        : text_part { label = "  图中饱和线右下方为过饱和区 (雾区), 其中的点无实际状态."; }
    }
    ok_only;
}
