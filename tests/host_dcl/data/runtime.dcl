// Dialogs for the runtime: actions of every priority, exits, nesting.
main_dlg : dialog {
    label = "Main";
    : edit_box { key = "val"; label = "Value:"; edit_limit = 15; }
    : edit_box { key = "enter"; allow_accept = true; }
    : button { key = "calc"; label = "Calc"; action = "(princ \"dcl\")"; }
    : button { key = "nested"; label = "Nested"; }
    : button { key = "plain"; label = "Plain"; }
    : toggle { key = "tg"; label = "Toggle"; }
    : button { key = "close"; label = "Close"; is_cancel = true; }
    : radio_column {
        key = "mode";
        action = "(setq mode $value)";
        : radio_button { key = "m1"; label = "One"; }
        : radio_button { key = "m2"; label = "Two"; }
    }
    : boxed_column {
        key = "group";
        : button { key = "inner"; label = "Inner"; }
    }
    ok_cancel;
}
child_dlg : dialog {
    label = "Child";
    : text { key = "res"; label = "none"; }
    : button { key = "deeper"; label = "Deeper"; }
    ok_only;
}
