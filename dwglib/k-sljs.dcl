// Duct hydraulic calculation: the main-duct length after tracing, the calculation inputs,
// the prompt shown when no network has been traced, and the results.

mainduct_l : dialog {
    label = "最不利环路";
    : boxed_column {
        label = "主风道(最不利环路)";
        : row {
            : text { label = "主风道总长(m):"; width = 18; fixed_width = true; }
            : edit_box { key = "mduct_l"; edit_width = 14; is_enabled = false; }
        }
        : text { label = "主风道已改变颜色显示; 在末端风管上把 is_main 设为 1 可指定主风道."; }
    }
    ok_only;
}

sljs_dlg : dialog {
    label = "风道水力计算";
    initial_focus = "K";
    : boxed_column {
        label = "计算参数";
        : row {
            : text { label = "当量粗糙度K:"; width = 18; fixed_width = true; }
            : edit_box { key = "K"; edit_width = 12; edit_limit = 30; }
            : text { label = "mm"; width = 6; fixed_width = true; }
        }
        : row {
            : text { label = "大气压力B:"; width = 18; fixed_width = true; }
            : edit_box { key = "B"; edit_width = 12; edit_limit = 30; }
            : text { label = "kPa"; width = 6; fixed_width = true; }
        }
        : row {
            : text { label = "空气温度t:"; width = 18; fixed_width = true; }
            : edit_box { key = "t"; edit_width = 12; edit_limit = 30; }
            : text { label = "℃"; width = 6; fixed_width = true; }
        }
    }
    : boxed_column {
        label = "说明";
        : text { label = "K为风管内壁的当量(绝对)粗糙度, 单位mm. 常用值:"; }
        : text { label = "  镀锌钢板 0.15;  混凝土风道 1~3;  软管 约0.9~3."; }
        : text { label = "B为当地大气压力(海平面101.325kPa); t在-10~70℃之间."; }
        : text { label = "只计算主风道(最不利环路)各管段: 沿程阻力与局部阻力."; }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "cal"; label = "计算"; is_default = true; width = 10; fixed_width = true; }
        : button { key = "cancel"; label = "退出"; is_cancel = true; width = 10; fixed_width = true; }
    }
    errtile;
}

jzdy_prompt : dialog {
    label = "风道水力计算";
    : column {
        : text { label = "当前图形中还没有追踪好的风管网络."; }
        : text { label = "请先用命令 SSSJ 选择起始风道, 追踪管网并确定主风道,"; }
        : text { label = "然后再运行风道水力计算 ZLJS."; }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "cancel"; label = "确定"; is_cancel = true; is_default = true; width = 10; fixed_width = true; }
    }
}

k_sljs_res : dialog {
    label = "风道水力计算结果";
    : text { key = "k_sljs_res"; width = 60; }
    : list_box {
        key = "duct_size_res";
        label = "管段编号   流量(m^3/h)   管长(m)   风管尺寸(mm)   流速(m/s)   阻力(Pa)";
        width = 90;
        height = 16;
        fixed_width_font = true;
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "cancel"; label = "关闭"; is_cancel = true; is_default = true; width = 10; fixed_width = true; }
    }
}
