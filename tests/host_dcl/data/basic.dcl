// One tile of each kind, with declared values that the runtime must normalise.
/* The block comment spans lines
   and holds a tile that must not be read: ghost : dialog { } */
basic : dialog {
    label = "Basic \"quoted\"\ttab\\end";   // escapes
    : edit_box { key = "name"; label = "Name:"; edit_limit = 5; value = "abc"; }
    : toggle { key = "flag"; label = "Flag"; value = "1"; }
    : radio_row {
        key = "choice";
        : radio_button { key = "r1"; label = "One"; value = "1"; }
        : radio_button { key = "r2"; label = "Two"; value = "1"; }
        : radio_button { key = "r3"; label = "Three"; }
    }
    : list_box { key = "items"; list = "alpha\nbeta\ngamma"; value = "1"; }
    : list_box { key = "many"; list = "a\nb\nc\nd"; multiple_select = true; }
    : popup_list { key = "pick"; list = "x\ny"; }
    : slider { key = "level"; min_value = 10; max_value = 20; value = "25"; }
    : text { key = "msg"; label = "Hello"; }
    : text { key = "cn"; label = "大气压(kPa):"; }   // UTF-8 text
    : image { key = "pic"; width = 10; height = 4; color = -2; }
    : image_button { key = "ibtn"; width = 5; aspect_ratio = 0.5; }
    : edit12_box { key = "wide"; }
    : button { key = "go"; label = "Go"; errmsg = "Go failed"; }
    ok_cancel_err;
}
