// Every standard name of the host's base definitions, used as a program would use them.
exits_ok : dialog { label = "A"; ok_only; }
exits_oc : dialog { label = "B"; ok_cancel; }
exits_och : dialog { label = "C"; ok_cancel_help; }
exits_ochi : dialog { label = "D"; ok_cancel_help_info; }
exits_oche : dialog { label = "E"; ok_cancel_help_errtile; }
exits_oce : dialog { label = "F"; ok_cancel_err; }
parts : dialog {
    label = "Parts";
    : boxed_column { label = "Box";
        : boxed_row { : text_part { label = "a"; } spacer; spacer_0; spacer_1; }
        : concatenation { : text_part { label = "b"; } : text_part { label = "c"; } }
        : paragraph { : text_part { label = "d"; } }
        : text_25 { key = "t25"; }
    }
    : boxed_radio_row { key = "br"; : radio_button { key = "x1"; } : radio_button { key = "x2"; } }
    : boxed_radio_column { key = "bc"; : radio_button { key = "y1"; } }
    : radio_column { key = "rc"; : radio_button { key = "z1"; } }
    : row { : default_button { key = "def"; label = "Def"; } : retirement_button { key = "ret"; label = "Ret"; } }
    : column { image_block; : icon_image { key = "icon"; } : swatch { key = "sw"; } }
    : edit12_box { key = "e12"; }
    : edit32_box { key = "e32"; }
    : list_box { key = "lb"; }
    : popup_list { key = "pl"; }
    : slider { key = "sl"; }
    : toggle { key = "tg"; }
    : image_button { key = "ib"; width = 2; height = 2; }
    errtile;
    ok_cancel;
}
dcl_settings : default_dcl_settings { audit_level = 1; }
