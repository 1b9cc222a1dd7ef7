# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# awk -f add_scene.awk docs/effects.md src/demo/scenes/table.h: the table of scenes as a reader of the page leaves it, with the
# declaration and the row of its "```cpp into src/demo/scenes/table.h" blocks; as it is where they stand in it already.
FNR == NR && /^```/ { isQuoted = $0 == "```cpp into src/demo/scenes/table.h"; next }
FNR == NR && isQuoted && /^void / { declaration = $0; next }
FNR == NR && isQuoted { row = $0; next }
FNR == NR { next }
$0 == declaration { isThere = 1 }
/^inline constexpr SCENE scenes/ && !isThere { print declaration "\n" }
/^};/ && !isThere { print row }
{ print }
