// 空气处理过程的计算结果与计算书:
//   q_resdlg    选择: 查看结果文件 qres.txt, 或生成计算书 (Word 文档)
//   v_resdlg    查看结果文件 qres.txt
//   introduce4  结果文件的说明
//   q_report    计算书的文件名
//   q_reshelp   计算书的说明

q_resdlg : dialog {
    label = "空气处理过程计算结果与计算书";
    : boxed_column {
        label = "现有内容";
        : text { key = "file_state"; width = 56; }
        : text { key = "journal_state"; width = 56; }
        : text { key = "chart_state"; width = 56; }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "view"; label = "查看结果(&V)..."; is_default = true; width = 14; fixed_width = true; }
        : spacer { width = 1; }
        : button { key = "report"; label = "生成计算书(&W)..."; width = 16; fixed_width = true; }
        : spacer { width = 1; }
        : button { key = "help"; label = "说明(&H)..."; width = 10; fixed_width = true; }
        : spacer { width = 1; }
        : cancel_button { label = "关闭"; }
    }
}

v_resdlg : dialog {
    label = "空气处理过程与回风系统计算结果 (qres.txt)";
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

introduce4 : dialog {
    label = "过程计算结果文件说明";
    : paragraph {
        : text_part { label = "列表显示当前文件夹中的文件 qres.txt: 空气处理过程和一次回风、"; }
        : text_part { label = "二次回风系统的计算每保存一次就追加一段, 最早的在前."; }
        : text_part { label = "每段以横线开始, 列出大气压 B、输入参数和计算结果 (三位小数)."; }
        : text_part { label = "超过99个字符的行分成几行显示."; }
        : text_part { label = "文件可用任何文本编辑器打开 (UTF-8 编码); 删除该文件即重新开始记录."; }
    }
    ok_only;
}

q_report : dialog {
    label = "生成计算书";
    : edit_box { key = "name"; label = "文件名:"; edit_width = 32; edit_limit = 120; value = "计算书.docx"; }
    : paragraph {
        : text_part { label = "计算书是 Word 文档 (.docx), 写在当前文件夹中; 已有同名文件时先提示, 再按生成才替换."; }
        : text_part { label = "其中按先后列出本次保存过的各项计算: 输入参数、计算结果和状态点,"; }
        : text_part { label = "当前图形中绘有焓湿图时, 附上焓湿图并标出各状态点."; }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "accept"; label = "生成(&W)"; is_default = true; width = 10; fixed_width = true; }
        : spacer { width = 2; }
        : cancel_button { label = "取消"; }
    }
    errtile;
}

q_reshelp : dialog {
    label = "计算书说明";
    : paragraph {
        : text_part { label = "\"查看结果\": 列出过程计算结果文件 qres.txt."; }
        : text_part { label = ""; }
        : text_part { label = "\"生成计算书\": 把本次 (程序装入以来) 保存过结果的计算写成 Word 文档:"; }
        : text_part { label = "  状态点计算 (c:ci_dt)、送风量与送风状态 (c:gscal)、两股空气混合 (c:airmix)、"; }
        : text_part { label = "  空气处理过程和回风系统的计算, 只记录按过\"保存结果\"的计算, 最多 200 项."; }
        : text_part { label = "  每项一节: 标题、大气压力、输入参数表和计算结果表 (带单位)、"; }
        : text_part { label = "  状态点表 (干球温度 t, 含湿量 d, 相对湿度 φ, 焓 i)."; }
        : text_part { label = "  当前图形中绘有焓湿图 (c:crti_dt) 时, 计算书最后附焓湿图, 图中用红点"; }
        : text_part { label = "  标出各状态点; 标记后的数字是计算的序号, 如 N2 为第 2 项的室内状态点."; }
        : text_part { label = ""; }
        : text_part { label = "文件先写入临时文件, 写完后再替换同名文件, 写入失败时原文件不变."; }
    }
    ok_only;
}
