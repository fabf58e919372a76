// A small dialog for the tests of opening suite dialogs.
probe : dialog {
  label = "Probe";
  : edit_box { key = "tn_value"; label = "t"; }
  ok_cancel;
  errtile;
}
