u : dialog {
    label = "U";
    : fancy_button { key = "f"; }
    ok_only;
}
