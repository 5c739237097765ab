"""Holds the times of one library against those of another, as Google Benchmark gives them in JSON on standard input: for
each argument how many times as long the one takes as the other, the least, the middle and the most of all pairs of
repetitions.
"""

import itertools
import json
import statistics
import sys

times = {}
for run in json.load(sys.stdin)["benchmarks"]:
    if run["run_type"] == "iteration":
        name, argument = run["run_name"].split("/")
        times.setdefault(int(argument), {}).setdefault(name, []).append(run["cpu_time"])
for argument, libraries in sorted(times.items()):
    (one, ours), (other, theirs) = sorted(libraries.items(), reverse=True)
    ratios = [a / b for a, b in itertools.product(ours, theirs)]
    print(f"{one} to {other}, up to {argument:7}: {min(ratios):.2f} {statistics.median(ratios):.2f} {max(ratios):.2f}  "
          f"({statistics.median(ours):.0f} to {statistics.median(theirs):.0f} ns)")
