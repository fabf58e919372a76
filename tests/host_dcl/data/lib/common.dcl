pair_buttons : row {
    : button { key = "b1"; label = "B1"; }
    : button { key = "b2"; label = "B2"; }
}
