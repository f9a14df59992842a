#!/usr/bin/env bash
# Builds Korvel with its measurements of speed and prints one table. Arguments name the measurements to take: start,
# descriptions, write, log, picking, file, kills; all without any. Nothing of it is part of CI.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 # for the names of the language files

need_packages "${build_packages[@]}" xvfb xauth fonts-dejavu-core valgrind
build bench korvel-bench >&2
xvfb-run -a -s "-screen 0 1024x800x24 -dpi 96 -noreset" build/bench/bench/bin/korvel-bench "$@" 2>/dev/null
