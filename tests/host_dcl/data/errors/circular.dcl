// two prototypes derived from each other
loop_a : loop_b { }
loop_b : loop_a { }
c : dialog { label = "C"; ok_only; }
