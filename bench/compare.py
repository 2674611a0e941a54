#!/usr/bin/env python3
"""Reads benchmark runs and prints the figures with the ratios that the project aims at."""

import json
import sys

SIZES = (100, 1000, 10000, 100000)
# subject, rival, largest ratio of their times
AIMS = [
    ("Number_Quillgrid", "Number_QLocale", 0.35),
    ("Number_QuillgridCurrency", "Number_QLocale", 0.35),
    ("Date_Quillgrid", "Date_QLocale", 0.10),
    ("Date_Quillgrid", "Date_Strptime", 1.50),
    ("Cells_AddAtEnd/100000", "Cells_AddAtEnd/1000", 1.50),  # per cell
    ("WorkDays_Diff/10", "WorkDays_DiffQuantLib/10", 0.001),
    ("WorkDays_Add/10", "WorkDays_AddQuantLib/10", 0.001),
    ("WorkDays_Diff/10", "WorkDays_DiffInList/10", 4.00),
    ("WorkDays_Add/10", "WorkDays_AddInList/10", 4.00),
    ("Sheet_ReadAll/10000", "Sheet_ReadAll/1", 1.30),
    ("Paint_FullQuillgrid/1000", "Paint_FullTable/1000", 0.33),  # per visible row
    ("Paint_FullQuillgrid/1000", "Paint_FullFormLayout/1000", 0.50),
    ("Paint_FullQuillgrid/1000", "Paint_FullByHand/1000", 2.00),
    ("Paint_FullQuillgrid/100000", "Paint_FullTable/100000", 0.33),
    ("Paint_FullQuillgrid/100000", "Paint_FullByHand/100000", 2.00),
    ("Paint_RowQuillgrid/1000", "Paint_RowTable/1000", 1.00),
    ("Paint_PageScrollQuillgrid/1000", "Paint_PageScrollTable/1000", 1.00),
    *((f"Paint_FirstFrameQuillgrid/{size}", f"Paint_FirstFrameTable/{size}", 1.00) for size in SIZES),
    *((f"Paint_FirstFrameQuillgridAutomatic/{size}", f"Paint_FirstFrameTable/{size}", 1.00) for size in SIZES),
    ("BuildQuillgrid/1000", "BuildTable/1000", 1.00),
    ("SortQuillgrid/100000", "SortTable/100000", 0.50),
    *((f"FoldQuillgrid/{size}", f"FoldTable/{size}", 0.60) for size in SIZES),
    ("Month_Repaint<qt::CalendarWidget>", "Month_Repaint<QCalendarWidget>", 0.20),
    ("ListPad_Open<PadList>/10", "ListPad_Open<ComboList>/10", 1.00),
    ("ListPad_Open<PadList>/10000", "ListPad_Open<ComboList>/10000", 0.05),
    ("ListPad_Open<PadList>/10000", "ListPad_Open<PadList>/10", 1.20),
    ("ListPad_Move<PadList>/10000", "ListPad_Move<PadList>/10", 1.20),
]
# subject, counter, largest value
LIMITS = [
    ("Number_Quillgrid", "allocations", 0.01),
    ("Date_Quillgrid", "allocations", 0.01),
    ("Show_Date", "allocations", 1.01),
    ("Show_Currency", "allocations", 1.01),
    ("Cells_AddAtEnd/100000", "bytes_per_cell", 500),
    ("WorkDays_Diff/100", "cpu_time", 50),
    ("WorkDays_Add/100", "cpu_time", 50),
    ("WorkDays_FirstTouch/1/manual_time", "real_time", 1000),
    ("WorkDays_FirstTouch/3/manual_time", "real_time", 1000),
    ("WorkDays_WholeCalendar", "cpu_time", 50e6),
    ("Control_Create", "allocations", 250),
    ("Control_Save", "allocations", 30),
    ("Control_Load", "allocations", 45),
    ("Sheet_ReadAll/10000", "allocations", 450),
    ("Sheet_WriteAll/10000", "allocations", 450),
    ("Record_Load/50", "allocations", 2),
    ("BuildQuillgrid/1000", "time_per_row", 3.2e-6 / 3),
    ("HeapQuillgrid/10000/iterations:1", "bytes_per_row", 775),
]
COUNTERS = ("allocations", "bytes_per_cell", "bytes_per_row")
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def medians(path):
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    return {run["run_name"]: run for run in runs if run.get("aggregate_name", "median") == "median"}


def time_of(run):
    for counter in ("time_per_cell", "time_per_row"):
        if counter in run:
            return run[counter] * 1e9
    return run["cpu_time"] * NANOSECONDS[run["time_unit"]]


def main(paths):
    runs = {}
    for path in paths:
        runs |= medians(path)
    for name, run in runs.items():
        extras = "  ".join(f"{key} {run[key]:.2f}" for key in COUNTERS if key in run)
        print(f"{name:42} {time_of(run):12.1f} ns  {extras}")
    print()
    missed = 0
    for subject, rival, largest in AIMS:
        if subject in runs and rival in runs:
            ratio = time_of(runs[subject]) / time_of(runs[rival])
            missed += ratio > largest
            print(f"{subject} / {rival}: {ratio:.3g} (at most {largest}) {'ok' if ratio <= largest else 'MISSED'}")
        elif subject in runs:
            print(f"{subject} / {rival}: skipped, for want of {rival}")
    for subject, counter, largest in LIMITS:
        if subject in runs:
            value = runs[subject][counter]
            missed += value > largest
            print(f"{subject} {counter}: {value:.4g} (at most {largest}) {'ok' if value <= largest else 'MISSED'}")
    return 1 if missed else 0


sys.exit(main(sys.argv[1:]))
