#!/usr/bin/env python3
"""Measures the program and writes the results to a page.

measure.py DIRECTORY PAGE [PACKAGE]     DIRECTORY holds startup_menu, startup_bare and qismora_bench
"""

import datetime
import json
import os
import random
import re
import resource
import statistics
import subprocess
import sys
import tempfile
import time

STARTS = 41
OPENINGS = 3
REPETITIONS = 5
MOST_TIMES = 1.3
MOST_OPENING = 50
MOST_KEYSTROKE = 16
BUSY = 0.1
LEAST_FAMILIES = 300_000

BENCHMARKS = {
    "DoubleClicksOnSixHeirs": "A double click on each of six captions",
    "Residuaries": "The command Residuaries",
    "ResiduariesWithoutMessage": "The command Residuaries without the father, which shows no message box",
    "SelectedReport": "The command Execute Selected, a son and thirteen other kinds of heir",
    "FullReportWithoutFiles": "A full report, without its files",
    "FullReportInMemoryFiles": "A full report with its files, in a memory file system",
    "DivisionInOneSchool": "A division among seven kinds of heir in one school, with its reasons",
    "DivisionInFourSchools": "The same in the four schools",
    "DivisionComparedWithCommands": "The same in one school, compared with the answer of the commands",
}


class Load:
    """The share of the CPU that other processes have used since this object was created."""

    def __init__(self):
        self.start = self.used()

    @staticmethod
    def used():
        with open("/proc/stat") as stat:
            ticks = [int(word) for word in stat.readline().split()[1:9]]
        own = sum(sum(resource.getrusage(who)[:2]) for who in (resource.RUSAGE_SELF, resource.RUSAGE_CHILDREN))
        idle = ticks[3] + ticks[4]
        return sum(ticks), sum(ticks) - idle - own * os.sysconf("SC_CLK_TCK")

    def share_of_others(self):
        (all_before, others_before), (all_now, others_now) = self.start, self.used()
        return max(0, (others_now - others_before) / (all_now - all_before))


def run(*command, environment=None):
    return subprocess.run(command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                          check=True).stdout


def start(command, environment):
    """Time and CPU time to the painted window, peak memory, and the further numbers that the probe prints."""
    before = time.monotonic() * 1000
    printed = [float(word) for word in run(*command, environment=environment).split()]
    return [printed[0] - before] + printed[1:]


def write_log(folder, lines):
    with open(os.path.join(folder, "popuQism.ppl"), "w", newline="\r\n") as log:
        for i in range(1, lines + 1):
            begin, end = "05/03/2024 12:00:00", "05/03/2024 13:02:05"
            log.write(f"{f' {i} ':<14}{begin:<28}{end:<28} 3725 \n")


def measure_starts(programs, lines):
    """The medians of the program and of the minimal one, in turns; the number of widgets; the times to open Case Study."""
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_CONFIG_HOME=home, XDG_DATA_HOME=home,
                           XDG_RUNTIME_DIR=home)
        if lines:
            write_log(home, lines)
        menu = [os.path.join(programs, "startup_menu"), home]
        # The first run writes the settings and fills the caches, so it is not counted.
        widgets = int(start(menu, environment)[3])
        bare = [os.path.join(programs, "startup_bare"), str(widgets)]
        start(bare, environment)
        runs = [(start(menu + [str(OPENINGS)], environment), start(bare, environment)) for _ in range(STARTS)]
    median = lambda program, column: statistics.median(run[program][column] for run in runs)
    return [(median(0, column), median(1, column)) for column in range(3)], widgets, (median(0, 4), median(0, 5))


def measure_division(programs, scale):
    """How the Division window opens, the first time and at best, and a keystroke: a usual and a crowded family."""
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_SCALE_FACTOR=str(scale), XDG_CONFIG_HOME=home,
                           XDG_DATA_HOME=home, XDG_RUNTIME_DIR=home)
        command = [os.path.join(programs, "division_window"), home]
        runs = [[float(word) for word in run(*command, environment=environment).split()] for _ in range(REPETITIONS)]
    return [statistics.median(column) for column in zip(*runs)]


def count_instructions(programs, name):
    """The instructions of one command, which do not depend on how busy the machine is; empty for a division."""
    if name.startswith("Division"):
        return ""
    counted = subprocess.run(
        ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", "--toggle-collect=*Counted*",
         os.path.join(programs, "qismora_bench"), "--count", name],
        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=True).stderr
    instructions = int(re.search(r"Collected : (\d+)", counted)[1]) // 100
    return f"{instructions:,}"


def measure_cases(programs):
    """The medians of the benchmarks in microseconds, the memory before and after a million cases, the compiler."""
    with tempfile.TemporaryDirectory() as folder:
        out = os.path.join(folder, "benchmarks.json")
        names = "|".join(BENCHMARKS)
        printed = run(os.path.join(programs, "qismora_bench"), f"--benchmark_filter=^({names})$",
                   f"--benchmark_repetitions={REPETITIONS}", f"--benchmark_out={out}")
        with open(out) as file:
            result = json.load(file)
    medians = {row["run_name"]: row["cpu_time"] for row in result["benchmarks"]
               if row.get("aggregate_name") == "median"}
    growth = re.search(r"(\d+) KiB before, (\d+) KiB after", printed)
    return medians, growth.groups(), result["context"]["compiler"]


def families_per_second(programs):
    """The number of families that qismora-divide divides per second of CPU time, the median of its runs."""
    rng = random.Random(1)
    families = 300_000
    with tempfile.NamedTemporaryFile("w", suffix=".csv") as table:
        table.write("id,Wives,Sons,Daughters,Father,Grand Father,Mother,Mother's Mother,Brothers (Full),"
                    "Sisters (Full),Consanguine Sister,Uterine Brothers,Gross Estate,Debts,Will(s)\n")
        for row in range(families):
            counts = [rng.choice((0, 0, 1, 2)) for _ in range(3)] + [rng.choice((0, 1)) for _ in range(4)]
            counts += [rng.choice((0, 0, 0, 1, 3)) for _ in range(4)]
            table.write(f"{row},{','.join(map(str, counts))},{rng.randrange(10**9) / 100:.2f},500,1000.50\n")
        table.flush()
        times = []
        for _ in range(REPETITIONS):
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            subprocess.run([os.path.join(programs, "qismora-divide"), "--format=csv", table.name],
                           stdout=subprocess.DEVNULL, check=True)
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            times.append(after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)
    return families / statistics.median(times)


def cpu_model():
    with open("/proc/cpuinfo") as file:
        return next((line.split(":")[1].strip() for line in file if line.startswith("model name")),
                    "unknown")


def load_text(others):
    share = f"other processes used {100 * others:.0f} % of the CPU meanwhile"
    return f"{share}: the machine was busy, so times are too high and ratios are rough" if others > BUSY else share


def compared(what, unit, both, limit=""):
    program, minimal = both
    return f"| {what} | {program:.1f} {unit} | {minimal:.1f} {unit} | {program / minimal:.2f} | {limit} |"


def write_page(path, programs, packages):
    load = Load()
    (quick, cpu, memory), widgets, openings = measure_starts(programs, 0)
    (quick_log, cpu_log, memory_log), _, _ = measure_starts(programs, 10000)
    cases, growth, compiler = measure_cases(programs)
    families = families_per_second(programs)
    small, large = measure_division(programs, 1), measure_division(programs, 2)
    qt = run("qtpaths6", "--query", "QT_VERSION").strip()
    limit = f"{MOST_TIMES}"
    rows = [
        "# Measurements",
        "",
        "Written by `./measure`. Times depend on the machine; ratios depend on it less.",
        "",
        "| | |",
        "|---|---|",
        f"| Day | {datetime.date.today()} |",
        f"| Machine | {os.cpu_count()} cores, {cpu_model()} |",
        f"| Load | {load_text(load.share_of_others())} |",
        f"| Built with | C++ compiler {compiler.strip()}, optimized; Qt {qt}, windows drawn offscreen |",
        "",
        "## Start",
        "",
        "From the start of the process to the painted main menu, compared with a minimal Qt program that shows as many",
        f"plain widgets: {widgets} labels and radio buttons. Medians of {STARTS} starts of each, in turns, without videos.",
        "",
        "| | Qismora | Minimal program | Ratio | Limit |",
        "|---|---|---|---|---|",
        compared("Painted, no log", "ms", quick, limit),
        compared("Painted, 10,000 lines in the log", "ms", quick_log, limit),
        compared("CPU time, no log", "ms", cpu),
        compared("CPU time, 10,000 lines in the log", "ms", cpu_log),
        compared("Peak memory, no log", "MiB", memory, limit),
        compared("Peak memory, 10,000 lines in the log", "MiB", memory_log, limit),
        "",
        f"Case Study was opened {OPENINGS} times in each of these runs. The medians:",
        "",
        "| | | Limit |",
        "|---|---|---|",
        f"| Opens from the menu, the first time | {openings[0]:.1f} ms | {MOST_OPENING} ms |",
        f"| Opens from the menu, the best of {OPENINGS} times | {openings[1]:.1f} ms | |",
        "",
        "## The Division window",
        "",
        "A keystroke counts until table, bar and tree are painted.",
        "",
        "| | 100 % | 200 % | Limit |",
        "|---|---|---|---|",
        f"| Opens, the first time | {small[0]:.1f} ms | {large[0]:.1f} ms | {MOST_OPENING} ms |",
        f"| Opens, the best time | {small[1]:.1f} ms | {large[1]:.1f} ms | |",
        f"| A keystroke, five kinds of heir | {small[2]:.1f} ms | {large[2]:.1f} ms | {MOST_KEYSTROKE} ms |",
        f"| A keystroke, every kind of heir | {small[3]:.1f} ms | {large[3]:.1f} ms | {MOST_KEYSTROKE} ms |",
        "",
        "## Cases, without windows",
        "",
        f"CPU time for seven heirs unless stated otherwise: medians of {REPETITIONS} runs of many repetitions.",
        "Instructions were counted with callgrind.",
        "",
        "| | Time | Instructions |",
        "|---|---|---|",
        *(f"| {words} | {cases[name]:.3g} µs | {count_instructions(programs, name)} |"
          for name, words in BENCHMARKS.items()),
        "",
        f"Memory before and after a million cases: {growth[0]} and {growth[1]} KiB.",
        "",
        f"Families of a table that `qismora-divide` divides, at least {LEAST_FAMILIES:,}: {families:,.0f} a second.",
    ]
    rows += ["", "## Size", "", "| | |", "|---|---|"] if packages else []
    rows += [f"| Debian package `{os.path.basename(package)}` | {os.path.getsize(package) / 2**20:.2f} MiB |"
             for package in packages]
    with open(path, "w") as page:
        page.write("\n".join(rows) + "\n")
    print("\n".join(rows))


write_page(sys.argv[2], sys.argv[1], sys.argv[3:])
