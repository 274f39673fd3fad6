#!/usr/bin/env python3
"""Breaks the core's rules one at a time and reports the breakages no test noticed.

Each mutant in mutants.txt names a source file, an exact text that must occur in it once,
the text that breaks the rule, and the test executable that must then fail. For every
mutant the tool edits the file, builds that executable, runs it, and puts the file back
byte for byte whatever happens. A mutant whose executable still passes survived: the rule
it breaks has no test that bites.

Run it by hand from the repository's top folder after a release build exists:
    tools/mutation_check/mutation_check.py [--build-dir build] [--only NAME]
It exits 1 when a mutant survived or could not be applied, 0 when every mutant was killed.
"""

import argparse
import pathlib
import signal
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
FIELDS = ("file", "test", "find", "replace")


class Mutant:
    def __init__(self, name, fields):
        self.name = name
        self.file = fields["file"]
        self.test = fields["test"]
        self.find = fields["find"]
        self.replace = fields["replace"]


def unescape(text):
    """Lets one line of the list stand for several lines of code: \\n is a line break."""
    return text.replace("\\n", "\n")


def parse(path):
    mutants, name, fields = [], None, {}

    def close():
        if name is None:
            return
        missing = [f for f in FIELDS if f not in fields]
        if missing:
            sys.exit(f"{path}: mutant '{name}' lacks {', '.join(missing)}")
        mutants.append(Mutant(name, fields))

    for number, line in enumerate(path.read_text().splitlines(), 1):
        if not line.strip() or line.startswith("#"):
            continue
        if line.startswith("[") and line.rstrip().endswith("]"):
            close()
            name, fields = line.strip()[1:-1], {}
            continue
        key, sep, value = line.partition(":")
        if not sep or key not in FIELDS or name is None:
            sys.exit(f"{path}:{number}: expected '[name]' or one of {', '.join(FIELDS)}")
        fields[key] = unescape(value[1:] if value.startswith(" ") else value)
    close()
    return mutants


def run(command, log):
    result = subprocess.run(command, cwd=ROOT, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, text=True)
    log.write(result.stdout)
    return result.returncode


def check(mutant, build_dir, log):
    """Answers 'killed', 'SURVIVED' or why the mutant could not be tried."""
    source = ROOT / mutant.file
    original = source.read_bytes()
    text = original.decode()
    if text.count(mutant.find) != 1:
        return f"NOT APPLIED (the text occurs {text.count(mutant.find)} times)"
    try:
        source.write_text(text.replace(mutant.find, mutant.replace))
        log.write(f"\n=== {mutant.name}\n")
        built = run(["cmake", "--build", build_dir, "--target", mutant.test], log)
        if built != 0:
            return "killed (does not build)"
        executable = ROOT / build_dir / "tests" / mutant.test
        return "SURVIVED" if run([str(executable), "--gtest_brief=1"], log) == 0 else "killed"
    finally:
        source.write_bytes(original)


def main():
    # A terminated run still puts the mutated file back (the finally in check()).
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("mutation check terminated"))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build-dir", default="build")
    parser.add_argument("--only", help="run the mutants whose name contains this text")
    parser.add_argument("--list", default=str(HERE / "mutants.txt"))
    args = parser.parse_args()

    mutants = parse(pathlib.Path(args.list))
    if args.only:
        mutants = [m for m in mutants if args.only in m.name]
    failures = 0
    with open(ROOT / args.build_dir / "mutation_check.log", "w") as log:
        for mutant in mutants:
            verdict = check(mutant, args.build_dir, log)
            print(f"{verdict:<12} {mutant.name}", flush=True)
            failures += not verdict.startswith("killed")
    # Leave the build matching the sources again.
    subprocess.run(["cmake", "--build", args.build_dir], cwd=ROOT, stdout=subprocess.DEVNULL)
    print(f"{len(mutants) - failures} of {len(mutants)} mutants killed, {failures} not")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
