// Several parents: the left-most one that has an attribute gives it.
big_text : text { width = 30; label = "big"; is_bold = true; }
red_text : text { width = 10; label = "red"; color = red; height = 2; }
both : big_text : red_text { }
info_box : edit_box { edit_width = 8; label = "Info"; }
inherit : dialog {
    label = "Inheritance";
    : both { key = "t1"; }
    : info_box { key = "e1"; label = "Changed"; }
    : both { key = "t2"; width = 12; }
    ok_only;
}
