s : dialog {
    label = "never closed;
    ok_only;
}
