// Auxiliary coordinate grid: the two families of parallel lines (start and end coordinate,
// spacing, angle), the centre lines and labels, and a preview drawn from the current values.
// Lengths travel on their sliders in tenths, angles in degrees.

t_fzzb : dialog {
    label = "辅助坐标网格设置";
    : row {
        : column {
            : boxed_column {
                label = "第一组平行线";
        : row {
            : text { label = "第一组 起点坐标:"; width = 18; fixed_width = true; }
            : edit_box { key = "e1"; edit_width = 9; edit_limit = 30; }
            : slider { key = "s1"; min_value = -32768; max_value = 32767; small_increment = 1; big_increment = 10; width = 22; }
        }
        : row {
            : text { label = "第一组 终点坐标:"; width = 18; fixed_width = true; }
            : edit_box { key = "e2"; edit_width = 9; edit_limit = 30; }
            : slider { key = "s2"; min_value = -32768; max_value = 32767; small_increment = 1; big_increment = 10; width = 22; }
        }
        : row {
            : text { label = "第一组 间距:"; width = 18; fixed_width = true; }
            : edit_box { key = "e3"; edit_width = 9; edit_limit = 30; }
            : slider { key = "s3"; min_value = 5; max_value = 32767; small_increment = 1; big_increment = 10; width = 22; }
        }
        : row {
            : text { label = "第一组 角度(度):"; width = 18; fixed_width = true; }
            : edit_box { key = "e4"; edit_width = 9; edit_limit = 30; }
            : slider { key = "s4"; min_value = -90; max_value = 90; small_increment = 1; big_increment = 10; width = 22; }
        }
            }
            : boxed_column {
                label = "第二组平行线";
        : row {
            : text { label = "第二组 起点坐标:"; width = 18; fixed_width = true; }
            : edit_box { key = "e5"; edit_width = 9; edit_limit = 30; }
            : slider { key = "s5"; min_value = -32768; max_value = 32767; small_increment = 1; big_increment = 10; width = 22; }
        }
        : row {
            : text { label = "第二组 终点坐标:"; width = 18; fixed_width = true; }
            : edit_box { key = "e6"; edit_width = 9; edit_limit = 30; }
            : slider { key = "s6"; min_value = -32768; max_value = 32767; small_increment = 1; big_increment = 10; width = 22; }
        }
        : row {
            : text { label = "第二组 间距:"; width = 18; fixed_width = true; }
            : edit_box { key = "e7"; edit_width = 9; edit_limit = 30; }
            : slider { key = "s7"; min_value = 5; max_value = 32767; small_increment = 1; big_increment = 10; width = 22; }
        }
        : row {
            : text { label = "第二组 角度(度):"; width = 18; fixed_width = true; }
            : edit_box { key = "e8"; edit_width = 9; edit_limit = 30; }
            : slider { key = "s8"; min_value = 0; max_value = 180; small_increment = 1; big_increment = 10; width = 22; }
        }
            }
            : row {
                : toggle { key = "a"; label = "不画中心线"; }
                : toggle { key = "b"; label = "不注坐标"; }
            }
        }
        : boxed_column {
            label = "预览";
            : image { key = "preview"; width = 25; height = 12.5; color = 0; fixed_width = true; fixed_height = true; }
        }
    }
    : row {
        fixed_width = true;
        alignment = centered;
        : button { key = "d"; label = "确定"; is_default = true; width = 10; fixed_width = true; }
        : button { key = "e"; label = "取消"; is_cancel = true; width = 10; fixed_width = true; }
    }
}
