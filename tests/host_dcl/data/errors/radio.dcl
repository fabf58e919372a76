rb : dialog {
    label = "RB";
    : row { : radio_button { key = "lonely"; } }
    ok_only;
}
