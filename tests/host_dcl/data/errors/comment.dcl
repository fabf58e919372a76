s : dialog { label = "S"; ok_only; }
/* this comment
   is never closed
