# The registries are not exported: the program links the outline's code.
