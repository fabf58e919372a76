// Includes a file with a fault: the message names the included file and its line.
@include "broken_child"
parent_dlg : dialog { label = "P"; ok_only; }
