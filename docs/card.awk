# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# awk -f card.awk HEADER: the headers as Doxygen reads them. The comment that follows the licence lines becomes that
# of the file, and a comment above several functions, with no empty line between them, that of each.
NR == 1 { inCard = 1 }
inCard && !/^\/\// { inCard = 0 }
inCard && /^\/\/ SPDX-/ { print "//"; next }
inCard && !opened { print "/// \\file"; opened = 1; next }
inCard { sub(/^\/\//, "///"); print; next }

/^$/ { comment = "" }
/^\/\/\/ / { comment = (isFresh ? comment "\n" : "") $0; isFresh = 1; print; next }
/^[A-Za-z].*\(/ && !isFresh && comment != "" { print comment }
{ isFresh = 0; print }
