sev1 : dialog { label = "1"; : nothing_here { key = "a"; } ok_only; }
sev2 : dialog { label = "2"; : button { label = "keyless"; } ok_only; }
