# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# The day VELM_RELEASE_DATE, which is all that packages know of time: VELM_EPOCH in seconds since 1970, VELM_MAN_DATE as in
# "November 21, 2026", VELM_MAIL_DATE as in "Sat, 21 Nov 2026 00:00:00 +0000".
string(REPLACE "-" ";" day "${VELM_RELEASE_DATE}")
list(POP_FRONT day y m)
# A year that begins in March, so that its leap day is the last one.
math(EXPR back "(14 - ${m}) / 12")
math(EXPR y "${y} - ${back}")
math(EXPR m "${m} + 12 * ${back} - 3")
math(EXPR VELM_EPOCH
  "86400 * (365 * ${y} + ${y} / 4 - ${y} / 100 + ${y} / 400 + (153 * ${m} + 2) / 5 + ${day} - 719469)")

set(former "$ENV{SOURCE_DATE_EPOCH}")
set(ENV{SOURCE_DATE_EPOCH} ${VELM_EPOCH})
string(TIMESTAMP VELM_MAN_DATE "%B %d, %Y" UTC)
string(REPLACE " 0" " " VELM_MAN_DATE "${VELM_MAN_DATE}")
string(TIMESTAMP VELM_MAIL_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(ENV{SOURCE_DATE_EPOCH} ${former})
