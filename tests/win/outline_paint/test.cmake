# The row paint is not exported: the program links the outline's code and
# paints rows of items and tree nodes that it builds itself.
