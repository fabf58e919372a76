// Surface-cooler (cooling coil) check.
//
// The dialogs of the coil check itself, of the device database editor and their help texts
// (sccaldlg, intro_scproofcal, scdinfo, scdhelp, warming, zat_help) belong in this file too;
// they are added with those commands, below the result-file dialogs.

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
