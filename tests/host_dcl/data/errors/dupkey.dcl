dk : dialog {
    label = "DK";
    : edit_box { key = "same"; }
    : edit_box { key = "same"; }
    ok_cancel;
}
