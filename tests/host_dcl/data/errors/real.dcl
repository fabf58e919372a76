r : dialog {
    label = "R";
    : image { key = "i"; width = .5; height = 2; }
    ok_only;
}
