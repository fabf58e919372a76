// Includes: one beside this file, one found only through the search path (no extension).
@include "parts.dcl"
@include "common";
included : dialog {
    label = "Included";
    : name_box { key = "who"; }
    pair_buttons;
    ok_cancel;
}
