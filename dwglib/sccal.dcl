// Surface-cooler (cooling coil) check: the check dialog and its explanation, the result-file
// viewer and deleter, the device database editor with its help and its delete confirmation,
// and the help of the whole calculation.

// ---- Viewing and deleting the result file sccal.txt ----------------------------------------

v_resdlg : dialog {
    label = "表冷器校核计算结果 (sccal.txt)";
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
        : text_part { label = "列表显示当前目录中的文件sccal.txt,即每次表冷器校核计算后"; }
        : text_part { label = "保存的结果,最早的在前。"; }
        : text_part { label = "每条记录以横线开始,列出大气压、表冷器型号、排数、台数与连接方式、"; }
        : text_part { label = "进风状态、风量、水量、进水温度,以及出风状态、出水温度和冷量。"; }
        : text_part { label = "超过99个字符的行分成几行显示。"; }
        : text_part { label = "不再需要这些结果时,可用命令SCDELRES删除此文件。"; }
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
        : text_part { label = "是否真的删除已保存的表冷器校核计算结果?"; }
        : text_part { label = "(当前目录中的文件sccal.txt,删除后不能恢复)"; }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "ok"; label = "删除"; width = 10; fixed_width = true; }
        : button { key = "cancel"; label = "取消"; is_default = true; is_cancel = true; width = 10; fixed_width = true; }
    }
}

// ---- Coil check and device database -------------------------------------------------------

sccaldlg : dialog {
    label = "表冷器校核计算";
    initial_focus = "t1_value";
    : row {
        : text { label = "大气压(kPa):"; width = 20; fixed_width = true; }
        : edit_box { key = "B"; edit_width = 12; edit_limit = 30; }
    }
    : boxed_column {
        label = "表冷器";
        : row {
            : text { label = "表冷器型号:"; width = 20; fixed_width = true; }
            : popup_list { key = "type"; width = 16; }
        }
        : row {
            : text { label = "排数:"; width = 20; fixed_width = true; }
            : edit_box { key = "Nn"; edit_width = 12; edit_limit = 15; }
        }
        : row {
            : text { label = "台数:"; width = 20; fixed_width = true; }
            : edit_box { key = "nu_value"; edit_width = 12; edit_limit = 15; }
        }
        : row {
            : text { label = "连接方式:"; width = 20; fixed_width = true; }
            : radio_row {
                key = "conn";
                : radio_button { key = "parallel"; label = "并联"; }
                : radio_button { key = "series"; label = "串联"; }
            }
        }
    }
    : boxed_column {
        label = "进风与冷水";
        : text { label = "进风状态:"; }
        : row {
            : text { label = "  干球温度 t1 (℃):"; width = 20; fixed_width = true; }
            : edit_box { key = "t1_value"; edit_width = 12; edit_limit = 30; }
        }
        : row {
            : text { label = "  湿球温度 ts1 (℃):"; width = 20; fixed_width = true; }
            : edit_box { key = "ts1_value"; edit_width = 12; edit_limit = 30; }
        }
        : row {
            : text { label = "风量 G (kg/h):"; width = 20; fixed_width = true; }
            : edit_box { key = "G_value"; edit_width = 12; edit_limit = 30; }
        }
        : row {
            : text { label = "进水温度 tw1 (℃):"; width = 20; fixed_width = true; }
            : edit_box { key = "tw1_value"; edit_width = 12; edit_limit = 30; }
        }
        : row {
            : text { label = "水量 W (kg/h):"; width = 20; fixed_width = true; }
            : edit_box { key = "W_value"; edit_width = 12; edit_limit = 30; }
        }
    }
    : boxed_column {
        label = "计算结果";
        : row {
            : text { label = "出风焓值 (kJ/kg):"; width = 20; fixed_width = true; }
            : text { key = "ih_value"; width = 14; }
        }
        : row {
            : text { label = "出风含湿量 (g/kg):"; width = 20; fixed_width = true; }
            : text { key = "d_value"; width = 14; }
        }
        : row {
            : text { label = "出风干球温度 (℃):"; width = 20; fixed_width = true; }
            : text { key = "t_value"; width = 14; }
        }
        : row {
            : text { label = "出风湿球温度 (℃):"; width = 20; fixed_width = true; }
            : text { key = "ts_value"; width = 14; }
        }
        : row {
            : text { label = "出风露点温度 (℃):"; width = 20; fixed_width = true; }
            : text { key = "tl_value"; width = 14; }
        }
        : row {
            : text { label = "出风相对湿度 (%):"; width = 20; fixed_width = true; }
            : text { key = "fy_value"; width = 14; }
        }
        : row {
            : text { label = "出水温度 tw2 (℃):"; width = 20; fixed_width = true; }
            : text { key = "tw2_value"; width = 14; }
        }
        : row {
            : text { label = "冷量 Q (kW):"; width = 20; fixed_width = true; }
            : text { key = "Q_value"; width = 14; }
        }
    }
    errtile;
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "cal"; label = "校核计算"; is_default = true; width = 10; fixed_width = true; }
        : button { key = "saveres"; label = "保存结果"; width = 10; fixed_width = true; }
        : button { key = "help"; label = "说明..."; width = 10; fixed_width = true; }
        : button { key = "cancel"; label = "退出"; is_cancel = true; width = 10; fixed_width = true; }
    }
}

intro_scproofcal : dialog {
    label = "表冷器校核计算说明";
    : paragraph {
        : text_part { label = "已知表冷器型号、排数、台数与连接方式,进风干、湿球温度,风量G、水量W"; }
        : text_part { label = "和进水温度tw1,求出风状态、出水温度tw2和冷量Q。"; }
        : text_part { label = " "; }
        : text_part { label = "迎面风速 Vy = G/3600/(Fy×1.2),水流速 w = W/3600/(fw×1000);"; }
        : text_part { label = "并联时风量和水量由各台平分,串联时每台通过全部风量和水量。"; }
        : text_part { label = "接触系数E2按迎面风速由设备库中的表插值求得。"; }
        : text_part { label = "由 t2 = tw1 + 5 开始迭代出风干球温度,直到表冷器能达到的热交换效率"; }
        : text_part { label = "与出风温度所要求的效率之差不大于0.0005。"; }
        : text_part { label = " "; }
        : text_part { label = "输入范围:大气压50-200kPa,进风湿球温度不高于干球温度,"; }
        : text_part { label = "进水温度低于进风湿球温度,风量、水量、排数和台数大于零。"; }
        : text_part { label = "按\"保存结果\"把结果追加到当前目录的文件sccal.txt中。"; }
        : text_part { label = "设备库datlib/sc.dat可用命令SCINFO查看和修改。"; }
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

scdinfo : dialog {
    label = "表冷器设备库 (datlib/sc.dat)";
    initial_focus = "type";
    : row {
        : column {
            : list_box { key = "records"; label = "库中的表冷器 (型号*排数):"; width = 22; height = 12; }
        }
        : column {
            : row {
                : text { label = "表冷器型号:"; width = 12; fixed_width = true; }
                : edit_box { key = "type"; edit_width = 12; edit_limit = 30; }
                : text { label = "排数:"; width = 6; fixed_width = true; }
                : edit_box { key = "Nn"; edit_width = 6; edit_limit = 15; }
            }
            : boxed_column {
                label = "传热系数 K = 1/(1/(A·Vy^m·ξ^p) + 1/(B·w^n))  W/(m2·℃)";
                : image { key = "formula"; width = 48; height = 9; color = graphics_background; }
                : row {
                    : edit_box { key = "A_value"; label = "A:"; edit_width = 9; edit_limit = 30; }
                    : edit_box { key = "m_value"; label = "m:"; edit_width = 9; edit_limit = 30; }
                    : edit_box { key = "p_value"; label = "p:"; edit_width = 9; edit_limit = 30; }
                }
                : row {
                    : edit_box { key = "B_value"; label = "B:"; edit_width = 9; edit_limit = 30; }
                    : edit_box { key = "n_value"; label = "n:"; edit_width = 9; edit_limit = 30; }
                    : spacer { width = 9; }
                }
            }
            : boxed_column {
                label = "结构参数";
                : row {
                    : edit_box { key = "L1_value"; label = "风量范围L (m3/h):"; edit_width = 9; edit_limit = 30; }
                    : edit_box { key = "L2_value"; label = "-"; edit_width = 9; edit_limit = 30; }
                }
                : row {
                    : edit_box { key = "Fd_value"; label = "每排散热面积Fd (m2):"; edit_width = 9; edit_limit = 30; }
                }
                : row {
                    : edit_box { key = "Fy_value"; label = "迎风面积Fy (m2):"; edit_width = 9; edit_limit = 30; }
                    : edit_box { key = "fw_value"; label = "通水断面积fw (m2):"; edit_width = 9; edit_limit = 30; }
                }
            }
        }
    }
    : boxed_row {
        label = "接触系数E2 (最多10组)";
        : list_box { key = "E2_list"; width = 28; height = 6; fixed_width_font = true; }
        : column {
            : edit_box { key = "Vy_value"; label = "迎面风速Vy (m/s):"; edit_width = 8; edit_limit = 15; }
            : edit_box { key = "E2_value"; label = "接触系数E2:"; edit_width = 8; edit_limit = 15; }
            : row {
                : button { key = "addE2list"; label = "加入"; width = 8; fixed_width = true; }
                : button { key = "deleteE2list"; label = "去掉"; width = 8; fixed_width = true; }
            }
        }
    }
    errtile;
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "add"; label = "增加/修改"; width = 10; fixed_width = true; }
        : button { key = "delete"; label = "删除"; width = 10; fixed_width = true; }
        : button { key = "help"; label = "说明..."; width = 10; fixed_width = true; }
        : button { key = "cancel"; label = "退出"; is_cancel = true; is_default = true; width = 10; fixed_width = true; }
    }
}

warming : dialog {
    label = "删除设备";
    : text { label = "        是否真的删除此设备?"; }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "ok"; label = "删除"; width = 10; fixed_width = true; }
        : button { key = "cancel"; label = "取消"; is_default = true; is_cancel = true; width = 10; fixed_width = true; }
    }
}

scdhelp : dialog {
    label = "表冷器设备库说明";
    : paragraph {
        : text_part { label = "每台表冷器按\"型号*排数\"存为一条记录,同一型号的不同排数是不同的记录。"; }
        : text_part { label = "在左边列表中选一条记录,或输入型号和排数,即显示库中的参数。"; }
        : text_part { label = " "; }
        : text_part { label = "A、m、p、B、n:传热系数公式中的系数,K的单位为W/(m2·℃),"; }
        : text_part { label = "    Vy为迎面风速(m/s),w为管内水流速(m/s),ξ为析湿系数。"; }
        : text_part { label = "Fd:每台每排的散热面积;Fy:迎风面积;fw:通水断面积(均为m2)。"; }
        : text_part { label = "L:样本给出的风量范围(m3/h),只供参考,校核计算不用它。"; }
        : text_part { label = "E2:各迎面风速下的接触系数,须在0与1之间(可等于1),至少一组,最多十组。"; }
        : text_part { label = " "; }
        : text_part { label = "增加/修改:库中没有此型号和排数时追加一条记录,已有时用新参数替换它。"; }
        : text_part { label = "删除:确认后从库中去掉此型号和排数的记录,其他记录不变。"; }
        : text_part { label = "修改和删除先写临时文件@sctemp.acc,写完后才替换sc.dat。"; }
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

zat_help : dialog {
    label = "表冷器校核计算帮助";
    : paragraph {
        : text_part { label = "校核计算做什么"; }
        : text_part { label = "  对已选定的表冷器(型号、排数、台数、并联或串联),在给定的进风状态、"; }
        : text_part { label = "  风量、水量和进水温度下,求它实际能达到的出风状态、出水温度和冷量,"; }
        : text_part { label = "  用来检查所选的表冷器能否把空气处理到设计要求的送风状态。"; }
        : text_part { label = " "; }
        : text_part { label = "接触系数E2"; }
        : text_part { label = "  E2 = 1 - (t2 - ts2)/(t1 - ts1),表示空气经过表冷器后接近饱和的程度。"; }
        : text_part { label = "  排数越多、迎面风速越低,E2越大。它决定出风干、湿球温度之差。"; }
        : text_part { label = "  迎面风速超出设备库给出的范围时按直线外推,并给出提示。"; }
        : text_part { label = " "; }
        : text_part { label = "析湿系数ξ"; }
        : text_part { label = "  ξ = (i1 - i2)/(1.01×(t1 - t2)),是全热交换量与显热交换量之比。"; }
        : text_part { label = "  ξ = 1为干工况,ξ > 1表示表面结露除湿,ξ越大除湿越多,传热系数也越大。"; }
        : text_part { label = " "; }
        : text_part { label = "怎样看结果"; }
        : text_part { label = "  出风干球温度、湿球温度(或焓值、含湿量)应不高于设计的机器露点或送风状态;"; }
        : text_part { label = "  冷量Q应不小于设计冷负荷;出水温度tw2与进水温度之差一般为3-5℃。"; }
        : text_part { label = "  达不到要求时可增加排数、台数,降低进水温度,或增大水量。"; }
        : text_part { label = "  迭代不收敛或出风状态不存在时,说明输入的参数不合理。"; }
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
