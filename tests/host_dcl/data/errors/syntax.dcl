// missing semicolon
bad : dialog {
    label = "Bad"
    ok_only;
}
