sa : dialog {
    label = "SA";
    : ok_cancel { label = "changed"; }
}
