name_box : edit_box { label = "Name"; edit_limit = 30; }
