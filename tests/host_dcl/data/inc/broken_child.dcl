child_proto : button {
    width = 3.;
}
