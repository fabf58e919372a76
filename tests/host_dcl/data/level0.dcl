// Audit level 0: the semantic audit is off, so a keyless toggle is accepted.
dcl_settings : default_dcl_settings { audit_level = 0; }
quiet : dialog { label = "Q"; : toggle { label = "no key"; } ok_only; }
