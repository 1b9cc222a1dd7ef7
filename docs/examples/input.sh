# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# What is pressed and pointed at while the examples run without a screen: sourced by renew.sh and by their test.
# shellcheck disable=SC2034
keys="100:V 108:E 116:L 124:M 132:4 140:0 150:3 160:0"
# shellcheck disable=SC2034
pointer="1:60:150:0 20:90:120:0 60:150:160:1 90:190:140:1 100:110:170:1 120:70:190:1 150:60:200:0"
