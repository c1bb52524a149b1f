#!/usr/bin/env python3
"""Start of the program against a bare program with as many plain widgets, run in turns.

startup.py FOLDER [RUNS]     FOLDER holds startup_menu and startup_bare
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time


def run(command, environment):
    before = time.monotonic() * 1000
    out = subprocess.run(command, env=environment, capture_output=True, text=True, check=True).stdout.split()
    return [float(out[0]) - before] + [float(word) for word in out[1:]]


def write_log(folder, lines):
    with open(os.path.join(folder, "popuQism.ppl"), "w", newline="\r\n") as log:
        for i in range(1, lines + 1):
            start, end = "05/03/2024 12:00:00", "05/03/2024 13:02:05"
            log.write(f"{f' {i} ':<14}{start:<28}{end:<28} 3725 \n")


def measure(programs, lines, runs):
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_CONFIG_HOME=home, XDG_DATA_HOME=home,
                           XDG_RUNTIME_DIR=home)
        if lines:
            write_log(home, lines)
        menu = [os.path.join(programs, "startup_menu"), home, "3"]
        widgets = int(run(menu, environment)[2])
        bare = [os.path.join(programs, "startup_bare"), str(widgets)]
        run(bare, environment)
        pairs = [(run(menu, environment), run(bare, environment)) for _ in range(runs)]
    of = lambda program, column: statistics.median(pair[program][column] for pair in pairs)
    print(f"{lines} lines in the log, {widgets} widgets, medians of {runs} runs")
    for what, column, unit in (("painted", 0, "ms"), ("peak memory", 1, "MiB")):
        mine, plain = of(0, column), of(1, column)
        print(f"  {what:<12} {mine:6.1f} {unit}, bare {plain:6.1f} {unit}: {mine / plain:.2f} times")
    print(f"  Case Study opens in {of(0, 3):.1f} ms the first time, {of(0, 4):.1f} ms at best")


def main():
    programs = sys.argv[1]
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 21
    for lines in (0, 10000):
        measure(programs, lines, runs)


main()
