#!/usr/bin/env python3
"""Counts the instructions of painting in forms of 1 000 and of 100 000 cells and says how they grow.

Times are too noisy to tell growth from none; valgrind counts the same instructions on every run.
The argument is the benchmark program."""

import math
import os
import re
import shutil
import subprocess
import sys
import tempfile

SIZES = (1000, 100000)
LARGEST_EXPONENT = 0.05
# benchmark, the functions whose instructions count
CASES = [
    ("Paint_FullQuillgrid", ["QWidget::render(QPaintDevice*,*"]),
    ("Paint_FullQuillgridAutomatic", ["QWidget::render(QPaintDevice*,*"]),
    ("Paint_PageScrollQuillgrid", ["*QuillgridForm::ScrollTo*", "*PaintPending*"]),
    ("Paint_PageScrollQuillgridAutomatic", ["*QuillgridForm::ScrollTo*", "*PaintPending*"]),
    ("Paint_RowQuillgrid", ["*QuillgridForm::ChangeValue*", "*PaintPending*"]),
]


def instructions(program, benchmark, functions, folder):
    out = os.path.join(folder, "callgrind.out")
    command = ["valgrind", "--tool=callgrind", f"--callgrind-out-file={out}"]
    command += [f"--toggle-collect={function}" for function in functions]
    command += [program, "--benchmark_min_time=0", f"--benchmark_filter=^{benchmark}$"]
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    with open(out, encoding="utf-8") as file:
        return int(re.search(r"^(?:summary|totals): (\d+)", file.read(), re.MULTILINE).group(1))


def main(program):
    if not shutil.which("valgrind"):
        print("growth: skipped, for want of valgrind")
        return 0
    missed = 0
    with tempfile.TemporaryDirectory() as folder:
        for benchmark, functions in CASES:
            small, large = (instructions(program, f"{benchmark}/{size}", functions, folder) for size in SIZES)
            if small < 10000:
                print(f"{benchmark}: nothing was counted; are the functions still called so?")
                missed += 1
                continue
            exponent = math.log(large / small) / math.log(SIZES[1] / SIZES[0])
            verdict = "ok" if exponent <= LARGEST_EXPONENT else "MISSED"
            missed += exponent > LARGEST_EXPONENT
            print(f"{benchmark}: {small} -> {large} instructions, exponent {exponent:.4f} "
                  f"(at most {LARGEST_EXPONENT}) {verdict}")
    return 1 if missed else 0


sys.exit(main(sys.argv[1]))
