# The shared file routines are not exported: the program links them.
