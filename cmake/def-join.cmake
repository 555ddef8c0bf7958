# Writes one .def from a head (LIBRARY and EXPORTS lines with the first
# entries) and the entry lists of every *.def in PARTS, in name order, so
# that each area of the library keeps its exports beside its header.
# With STRIP the i686 decorations are dropped ("Name@N == Name" -> "Name").
file(READ ${HEAD} text)
file(GLOB parts ${PARTS}/*.def)
list(SORT parts)
foreach(part ${parts})
  file(READ ${part} more)
  string(APPEND text "\n${more}")
endforeach()
if(STRIP)
  string(REGEX REPLACE "([A-Za-z_][A-Za-z0-9_]*)@[0-9]+[ \t]*==[ \t]*[A-Za-z_][A-Za-z0-9_]*" "\\1" text "${text}")
endif()
file(WRITE ${OUT}.tmp "${text}")
file(COPY_FILE ${OUT}.tmp ${OUT} ONLY_IF_DIFFERENT)
file(REMOVE ${OUT}.tmp)
