#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Plants small faults, one at a time, and tells which ones the tests notice.

   script/mutants.py [COUNT [SEED [FOLDER...]]]     120 faults by default, drawn evenly from all files of
                                                    src/ and platform/; panel/ is another folder to name

Builds the sources from a copy in build/mutants. The tests of the library are those of build/dev, with the library
from there in place of theirs; the panel is linked into its tests, which are built there, too. The last table goes to
build/mutants/result.txt."""
import collections
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build" / "mutants"
SOURCE = WORK / "source"
BUILD = WORK / "build"
LIBRARIES = f"{BUILD}/src:{BUILD}/platform"

# What stands in the code, what takes its place.
FAULTS = [
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" == ", " != "), (r" != ", " == "), (r" && ", " || "), (r" \|\| ", " && "),
    (r" \+ 1\b(?!\.)", " + 2"), (r" - 1\b(?!\.)", ""), (r"\bif \(!", "if ("),
    (r"\breturn true;", "return false;"), (r"\breturn false;", "return true;"),
    (r"std::max\(", "std::min("), (r"std::min\(", "std::max("),
    (r"\bQ_EMIT [^;]*;", ";"),
]

# The tests for a source, from its path: the quick ones first.
TESTS = [
    (r"smithchart/(accessible|.*reader|tracewalk|tracetone|tracesummary|tracewords)",
     "tst_smithreader|tst_tracewalk|tst_tracetone"),
    (r"smithrender/stroke|smithchart/(coverage|polylines)", "tst_tracepictures|tst_vectorkernels"),
    (r"smithchart/smithchartplot_pointer|smithchartplot_markers", "tst_smithchart"),
    (r"smithchart/smithchartplot", "tst_smithchart|fuzz_smithchart"),
    (r"smithchart/(gridgeometry|viewstate)", "tst_gridgeometry|tst_viewstate|tst_smithchartplot"),
    (r"smithchart/columnextremes", "tst_columnextremes"),
    (r"smithchart/(viewgrid|gridarc)", "tst_viewgrid|tst_smithchartgrid"),
    (r"smithchart/(limit|smithlimit|circle|smithcircle)", "tst_limitarea|tst_smithlimit|tst_circle"),
    (r"smithrender/|smithchart/", "tst_decimation|fuzz_traces|tst_vectorkernels|tst_indexedtrace"),
    (r"plot/", "tst_marker$|tst_qcp|tst_smithchart"),
    (r"utils/", "tst_formatting|tst_propertywatcher|adapter|stepcontroller"),
    (r"controls/(.*adapter|step)", "adapter|tst_stepcontroller|tst_editablewidget"),
    (r"controls/theme", "tst_theme|tst_stylesheets"),
    (r"controls/(touch|unit|editable|ieditable|keypad)",
     "tst_touchnumkeyboard|tst_unitcolumn|tst_editablewidget|tst_overlay"),
    (r"controls/(overlay|draggable|combo)",
     "tst_overlay|tst_draggable|tst_combobox|tst_popupplacement|tst_touchnumkeyboard"),
    (r"widgets/(enum|menu|popup)", "tst_popupwidget|tst_enumtextbutton|tst_menubutton|tst_popupplacement"),
    (r"widgets/(label|abstract|info|switch|button|rect)",
     "button|tst_rectangular|tst_stylesheets"),
    (r"widgets/marker", "tst_markerstatusitem"),
    (r"widgets/(lock|display)", "tst_lockwidget|tst_displaypanel"),
    (r"platform/", "tst_guicontext|tst_placement|tst_popupplacement|tst_roundlabel|tst_stylehelper|tst_tabletcombobox2"
     "|tst_widgetmousemovetool|tst_panelmodel"),
]

# What a room of the panel is tested by beside its own tests, and what takes too long for the other rooms.
NEIGHBOURS = {"diagrams": ["tst_panelwindow"], "entry": ["tst_keyboard"], "files": ["tst_exports"],
              "link": ["tst_serve"], "model": ["tst_setups"], "window": ["tst_filecontroller"]}
SLOW = {"tst_link", "tst_powercut"}

UNFIT = ["^nothing$"] # tests that fail for another reason than a fault


def run(arguments, timeout=None, env=None):
    try:
        return subprocess.run(arguments, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, timeout=timeout, env=env)
    except subprocess.TimeoutExpired:
        return None


def places(path):
    """Where a fault fits into a file: (start, end, replacement)."""
    text = path.read_text()
    # Comments and texts stay as they are: blanks of the same length hide them.
    hidden = re.sub(r"//[^\n]*|/\*.*?\*/|\"(?:\\.|[^\"\\\n])*\"|^[ ]*(?:#|template|connect)[^\n]*|[^\n]*reserve\([^\n]*",
                    lambda m: re.sub(r"[^\n]", " ", m.group(0)), text, flags=re.S | re.M)
    found = []
    for pattern, replacement in FAULTS:
        for match in re.finditer(pattern, hidden):
            found.append((match.start(), match.end(), replacement))
    return found


def prepare():
    shutil.rmtree(SOURCE, ignore_errors=True)
    files = run(["git", "-C", str(ROOT), "ls-files"]).stdout.split("\n")
    for name in filter(None, files):
        target = SOURCE / name
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(ROOT / name, target) # newer than what the last run built with a fault in it
    configure = ["cmake", "-S", str(SOURCE), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                 "-DCMAKE_CXX_FLAGS=-g0", "-DVNAWIDGETS_TESTS=ON", # which exports what tests reach
                 "-DVNAWIDGETS_EXAMPLES=OFF"]
    if shutil.which("ld.lld"):
        configure.append("-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld")
    if shutil.which("ccache"):
        configure.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
    for step in (configure, ["cmake", "--build", str(BUILD), "--target", "vnawidgets"]):
        done = run(step)
        if done.returncode:
            sys.exit(done.stdout[-3000:])


def judge(path=None):
    """What becomes of the fault now in the sources; without a path, what the sound library gives."""
    if run(["cmake", "--build", str(BUILD), "--target", "vnawidgets"]).returncode:
        return "not compiled"
    every = "|".join(sorted({tests for _, tests in TESTS}))
    near = [tests for pattern, tests in TESTS if path and re.search(pattern, str(path))][:1]
    # The others, too, where the near ones notice nothing.
    for names in near + [every]:
        done = test(ROOT / "build" / "dev", names, bool(path))
        if not path:
            UNFIT.extend(re.findall(r"\d+ - (\w+) \(", done.stdout))
        elif not done or done.returncode:
            return "noticed"
    return "survived"


def judge_panel(path=None):
    """The same of a fault in the panel: the tests of its room first, and the others where they notice nothing."""
    room = path.parts[1] if path else ""
    tests = {file.stem: file.parent.name for file in (ROOT / "tests" / "panel").rglob("tst_*.cpp")}
    near = {name for name, place in tests.items() if place == room} | set(NEIGHBOURS.get(room, []))
    for names in (near, set(tests) - near - SLOW):
        if not names:
            continue
        if run(["cmake", "--build", str(BUILD), "--target", *sorted(names)]).returncode:
            return "not compiled"
        done = test(BUILD, "|".join(f"{name}$" for name in sorted(names)), bool(path))
        if not path:
            UNFIT.extend(re.findall(r"\d+ - (\w+) \(", done.stdout))
        elif not done or done.returncode:
            return "noticed"
    return "survived"


def test(folder, names, stops):
    """What ctest says of the tests with these names; None if they do not end."""
    return run(["ctest", "--test-dir", str(folder), "-R", names, "-E", "|".join(UNFIT), "-j2", "--timeout", "300"]
               + (["--stop-on-failure"] if stops else []),
               timeout=1200, env=dict(os.environ, LD_LIBRARY_PATH=LIBRARIES))


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 120
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else 1
    folders = sys.argv[3:] or ["src", "platform"]
    prepare()
    if folders != ["panel"]:
        judge()
    if "panel" in folders:
        judge_panel()
    print("left out, as they fail without a fault:", UNFIT[1:], flush=True)
    chance = random.Random(seed)
    sources = sorted(file for folder in folders for file in (SOURCE / folder).rglob("*.cpp"))
    weighted = [(path, place) for path in sources for place in places(path)]
    chance.shuffle(weighted)
    counts = collections.Counter()
    with open(WORK / "result.txt", "w") as table:
        for path, (start, end, replacement) in weighted:
            if counts["noticed"] + counts["survived"] == count:
                break
            text = path.read_text()
            path.write_text(text[:start] + replacement + text[end:])
            name = path.relative_to(SOURCE)
            verdict = (judge_panel if name.parts[0] == "panel" else judge)(name)
            path.write_text(text)
            counts[verdict] += 1
            line = text.count("\n", 0, start) + 1
            shown = " ".join(text[start:end].split())[:40]
            print(f"{verdict:12} {name}:{line}: '{shown}' -> '{replacement.strip()}'",
                  file=table, flush=True)
        total = counts["noticed"] + counts["survived"]
        summary = f"{counts['noticed']} of {total} faults noticed ({100 * counts['noticed'] // total} %)"
        print(summary, file=table)
    print(summary)
    sys.exit(0 if 100 * counts["noticed"] >= 85 * total else 1)


main()
