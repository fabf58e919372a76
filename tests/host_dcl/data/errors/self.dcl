self_dlg : dialog {
    label = "S";
    : row { self_row; }
    ok_only;
}
self_row : row { : column { self_row; } }
