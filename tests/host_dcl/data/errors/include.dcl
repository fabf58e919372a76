@include "nowhere.dcl"
inc_dlg : dialog { label = "I"; ok_only; }
