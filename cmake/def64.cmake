# Turns a 32-bit .def ("Name@N == Name") into the plain x86_64 form ("Name").
file(READ ${IN} text)
string(REGEX REPLACE "([A-Za-z_][A-Za-z0-9_]*)@[0-9]+[ \t]*==[ \t]*[A-Za-z_][A-Za-z0-9_]*" "\\1" text "${text}")
file(WRITE ${OUT} "${text}")
