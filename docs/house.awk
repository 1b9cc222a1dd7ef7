# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# awk -f house.awk LINKS: draws the house for dot out of "A B" lines, target A linking target B.
BEGIN {
    holds["velm_foundation"] = "list, sine, random, memory"
    holds["velm_image"] = "pixels, netpbm, colours"
    holds["velm_vector"] = "lines, drawings, fonts"
    holds["velm_audio"] = "samples, synthesis, music"
    holds["velm_platform"] = "the seam: what demo and effects see"
    holds["velm_x11"] = "Xlib and /dev/dsp"
    holds["velm_headless"] = "no screen, virtual time"
    holds["velm_desktop"] = "SDL: enlarged windows, sound"
    holds["velm_web"] = "a canvas and an audio worklet"
    holds["velm_page"] = "the page and its program"
    holds["velm_png"] = "PNG files"
    holds["velm_arguments"] = "what the tools are asked for"
    holds["velm_effects"] = "one pair of files each"
    holds["velm_kit"] = "a loop of frames for everyone"
    holds["velm_live"] = "another program's window"
    holds["velm4030-live"] = "source files, alive"
    holds["velm_demo"] = "start-up, scenes, layers, keys"
    holds["velm4030"] = "the demo"
    holds["velm4030-capture"] = "the demo as files"
    holds["velm4030-play"] = "the demo enlarged"
    holds["paint_assets"] = "the painter of the assets"
    folder["velm_x11"] = "machines/x11"
    folder["velm_headless"] = "machines/headless"
    folder["velm_desktop"] = "machines/desktop"
    folder["velm_live"] = "machines/live"
    folder["velm_web"] = "machines/web"
    folder["velm_page"] = "tools/page"
    folder["velm_png"] = "tools/png"
    folder["velm_arguments"] = "tools/common"
    print "digraph house {"
    print "bgcolor=\"white\"; nodesep=0.3; ranksep=0.5;"
    print "node [shape=box, style=\"rounded,filled\", fixedsize=true, width=2.7, height=0.62, penwidth=1.5,"
    print "  fontname=\"Helvetica,Arial,sans-serif\", fontsize=11, fillcolor=\"#eef4ff\", color=\"#4060c0\"];"
    print "edge [color=\"#8090b0\", arrowsize=0.7];"
}
function draw(target, isLibrary, name, style) {
    if (drawn[target]++) {
        return
    }
    isLibrary = target ~ /^velm_/
    name = target in folder ? folder[target] : isLibrary ? "src/" substr(target, 6) : target
    programs = programs (isLibrary ? "" : " \"" target "\";")
    style = isLibrary ? "" : ", fillcolor=\"#1a0030\", fontcolor=\"#40f0ff\", color=\"#ff2890\""
    printf "\"%s\" [label=<<b>%s</b><br/><font point-size=\"10\">%s</font>>%s];\n", target, name, holds[target], style
}
{ draw($1); draw($2); printf "\"%s\" -> \"%s\";\n", $1, $2 }
END { print "{ rank=min;" programs " }"; print "}" }
