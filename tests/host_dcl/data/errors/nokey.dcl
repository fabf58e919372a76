nk : dialog {
    label = "NK";
    : toggle { label = "no key"; }
    ok_only;
}
