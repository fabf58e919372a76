// Not used by inc/main.dcl: the including file's own folder comes first.
name_box : edit_box { label = "Other"; edit_limit = 99; }
