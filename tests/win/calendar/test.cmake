# The exports are driven on calendar objects that the tests make themselves,
# without a window; the dialogs' date checks are not exported.
