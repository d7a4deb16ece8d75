# SPDX-License-Identifier: MIT
"""Plants faults and counts those that the tests notice; started by mutate.sh.

A fault is one change on one line. Faults that do not compile are drawn again. Each worker has a copy of the sources
with a build of its own. The test programs of a fault are built one after another, those near its folder first; one whose
bytes and whose fellow programs' bytes are those without a fault is out of reach. The first that fails, crashes or takes
far too long ends it. Cases that take long come last and only in programs within reach, very long ones only near the fault.
"""
import collections
import filecmp
import hashlib
import json
import os
import queue
import random
import re
import shutil
import signal
import subprocess
import sys
import threading
import time

BASE = "build/mutate"
SLOW = 1.0  # seconds from which on a test case waits until all quick ones have passed
FAR = 10.0  # seconds from which on a case is only run for faults near its program
PATIENCE = 15  # seconds that a run may take beyond six times what it takes without a fault
LIMITS = ["prlimit", f"--as={6 << 30}", f"--fsize={1 << 30}"]  # a fault may well fill the memory or the disk
# Folders without a test program of their own name, or with others that are close.
NEAR = {"explain": ["help", "cli"], "forms": ["ui", "game", "qt"], "app": ["cli"], "script": ["ui"], "memory": ["ui"]}
SWAPS = [(r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "), (r" == ", " != "), (r" != ", " == "),
         (r" && ", " || "), (r" \|\| ", " && "), (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " + "), (r" \+= ", " -= "),
         (r" -= ", " += "), (r" \|= ", " &= "), (r" &= ", " |= "), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
         (r"(?<=[(&|=] )!(?=\w)|(?<=\()!(?=\w)", "")]
NUMBER = re.compile(r"(?<![\w.\"'])(\d+)(?![\w.'])")
CALL = re.compile(r"^\s+(?!return\b|delete\b|case\b|else\b|if\b|for\b|while\b|EXPECT|static_assert|Require)"
                  r"[\w:.\->()\[\]]*\w\(.*\);$")
SKIPPED = re.compile(r"^\s*(//|#|\*|static_assert|using |namespace |template|friend |public:|private:)|KESTREL_|NOLINT")

Fault = collections.namedtuple("Fault", "path number was line")  # number counts from 0
Run = collections.namedtuple("Run", "name program filter environment seconds")


def lines_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read().split("\n")


def faults_of(path):
    found = []
    asserted = False  # in a static_assert of several lines
    for number, line in enumerate(lines_of(path)):
        asserted = asserted or bool(re.match(r"^\s*static_assert", line))
        skipped = asserted or SKIPPED.search(line)
        asserted = asserted and not line.rstrip().endswith(";")
        if skipped:
            continue
        code = line.split("//")[0]
        quotes = [m.span() for m in re.finditer(r'"(?:[^"\\]|\\.)*"', code)]

        def free(match):
            return not any(a <= match.start() < b for a, b in quotes)

        for pattern, other in SWAPS:
            for match in filter(free, re.finditer(pattern, code)):
                found.append(Fault(path, number, line, line[:match.start()] + other + line[match.end():]))
        for match in filter(free, NUMBER.finditer(code)):
            for value in {int(match[1]) + 1, max(int(match[1]) - 1, 0)} - {int(match[1])}:
                found.append(Fault(path, number, line, line[:match.start()] + str(value) + line[match.end():]))
        if CALL.match(code) and code.count("(") == code.count(")"):
            found.append(Fault(path, number, line, re.match(r"\s*", line)[0] + ";"))
    return found


def listed_faults(list_path):
    """Those of a list as this program writes it: place, line as it was, line with the fault. Lines may have moved."""
    found = []
    entries = re.findall(r"^(\S+):(\d+)\n  - (.*)\n  \+ (.*)$", "\n".join(lines_of(list_path)), re.MULTILINE)
    for path, number, was, line in entries:
        places = [n for n, text in enumerate(lines_of(path)) if text.strip() == was.strip()]
        if places:
            found.append(Fault(path, min(places, key=lambda n: abs(n - int(number))), was, line))
        else:
            print(f"{path}:{number}: that line is no more: {was}", flush=True)
    return found


class Worker:
    def __init__(self, name):
        self.root = f"{BASE}/{name}"
        self.build = f"{self.root}/build/mutate"
        self.scratch = os.path.abspath(f"{self.root}/scratch")
        self.copy_sources()
        launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        configured = self.run(["cmake", "-S", self.root, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                               "-DCMAKE_CXX_FLAGS_DEBUG=-O1", "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST",
                               *launcher], 300)
        if configured or self.make("all"):
            raise RuntimeError(f"{self.root} does not build without a fault")
        self.measure()

    def copy_sources(self):
        """Brings the copy up to date; what is the same stays as it is, with what was built from it."""
        wanted = set(filter(os.path.isfile, listed("")))
        for folder, _, names in os.walk(self.root):
            if folder.startswith(self.build):
                continue
            for path in (os.path.relpath(f"{folder}/{name}", self.root) for name in names):
                if path not in wanted:
                    os.remove(f"{self.root}/{path}")
        for path in wanted:
            copy = f"{self.root}/{path}"
            os.makedirs(os.path.dirname(copy), exist_ok=True)
            if not os.path.isfile(copy) or not filecmp.cmp(path, copy, shallow=False):
                shutil.copy(path, copy)

    def measure(self):
        """Each test program once without a fault: what it is built to, its quick cases as one run, its slow ones."""
        self.sound = self.programs()
        self.quick, self.slow = {}, []
        for name in sorted(filter(lambda name: name.endswith("_test"), self.sound)):
            report = os.path.abspath(f"{self.build}/cases.json")
            if self.test(Run(name, name, "*", {}, 120), report):
                raise RuntimeError(f"{name} fails without a fault")
            with open(report, encoding="utf-8") as file:
                suites = json.load(file)["testsuites"]
            seconds = {f"{suite['name']}.{case['name']}": float(case["time"][:-1])
                       for suite in suites for case in suite["testsuite"]}
            slow = [case for case in seconds if seconds[case] >= SLOW]
            self.slow += [Run(f"{name}:{case}", name, case, {}, seconds[case]) for case in slow]
            rest = sum(seconds[case] for case in seconds if case not in slow)
            self.quick[name] = Run(name, name, "-" + ":".join(slow), {}, rest)
        if "qt_test" in self.quick:
            with open(f"{self.root}/tests/qt/CMakeLists.txt", encoding="utf-8") as file:
                scaled = re.search(r"NAME qt\.scaled COMMAND qt_test\s+--gtest_filter=(\S+)\)", file.read())[1]
            self.slow.append(Run("qt_test, scaled", "qt_test", scaled, {"QT_SCALE_FACTOR": "1.25"}, 10))
        self.slow.sort(key=lambda run: run.seconds)

    @staticmethod
    def run(command, limit, **options):
        """The exit status of a command, None when it took too long; all that it started ends with it."""
        with subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              start_new_session=True, **options) as process:
            try:
                return process.wait(limit)
            except subprocess.TimeoutExpired:
                return None
            finally:
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass

    def make(self, target):
        return self.run(["cmake", "--build", self.build, "-j", "1", "--target", target], 7200)

    def test(self, run, report=""):
        shutil.rmtree(self.scratch, ignore_errors=True)
        os.makedirs(self.scratch)
        command = [*LIMITS, os.path.abspath(f"{self.build}/bin/{run.program}"), f"--gtest_filter={run.filter}",
                   "--gtest_brief=1", f"--gtest_output=json:{report}" if report else "--gtest_fail_fast"]
        own = {"HOME": self.scratch, "TMPDIR": self.scratch, **run.environment}
        return self.run(command, PATIENCE + 6 * run.seconds, cwd=self.build, env={**os.environ, **own})

    def programs(self):
        found = {}
        for name in os.listdir(f"{self.build}/bin"):
            if os.path.isfile(f"{self.build}/bin/{name}"):
                with open(f"{self.build}/bin/{name}", "rb") as file:
                    found[name] = hashlib.sha1(file.read()).digest()
        return found

    def reached(self, name):
        """Whether a test program or one that it may start differs from those without a fault."""
        return any(digest != self.sound[other] for other, digest in self.programs().items()
                   if other == name or not other.endswith("_test"))

    def order(self, path):
        near = self.near(path)
        return sorted(self.quick, key=lambda name: (near.index(name) if name in near else 99, self.quick[name].seconds))

    @staticmethod
    def near(path):
        folders = path.split("/")[1:-1]
        return [f"{name}_test" for folder in reversed(folders) for name in [folder, *NEAR.get(folder, [])]]

    def noticed(self, fault):
        """By which run the fault is noticed; "" by none, None when it does not compile."""
        place = f"{self.root}/{fault.path}"
        lines = lines_of(place)
        try:
            with open(place, "w", encoding="utf-8") as file:
                file.write("\n".join(lines[:fault.number] + [fault.line] + lines[fault.number + 1:]))
            within = set()
            for name in self.order(fault.path):
                if self.make(name):
                    return None
                if self.reached(name):
                    within.add(name)
                    if (status := self.test(self.quick[name])) != 0:
                        return name + ("" if status else ", too long")
            near = self.near(fault.path)
            for run in self.slow:
                if run.program not in within or (run.seconds >= FAR and run.program not in near):
                    continue
                if (status := self.test(run)) != 0:
                    return run.name + ("" if status else ", too long")
            return ""
        finally:
            with open(place, "w", encoding="utf-8") as file:
                file.write("\n".join(lines))


def listed(pattern):
    return subprocess.run(["git", "ls-files", *filter(None, [pattern])], check=True, capture_output=True,
                          text=True).stdout.split("\n")[:-1]


def write_report(results):
    """The survivors as a list that can be planted again, and a table by folder."""
    with open(f"{BASE}/survivors.txt", "w", encoding="utf-8") as file:
        for fault, name in sorted(results):
            if not name:
                file.write(f"{fault.path}:{fault.number + 1}\n  - {fault.was.strip()}\n  + {fault.line.strip()}\n")
    by_folder = collections.defaultdict(lambda: [0, 0])
    for fault, name in results:
        count = by_folder[os.path.dirname(fault.path).removeprefix("src/")]
        count[0] += 1
        count[1] += name != ""
    with open(f"{BASE}/table.md", "w", encoding="utf-8") as file:
        file.write("| folder | planted | noticed |\n|---|---|---|\n")
        for folder, (planted, seen) in sorted(by_folder.items()):
            file.write(f"| `{folder}` | {planted} | {seen} |\n")


class Handled:
    """What has been planted, in a file: a run of the same sources, seed and pattern that was broken off goes on."""
    path = f"{BASE}/handled.json"

    def __init__(self, run):
        self.run, self.faults = run, []  # of a fault that did not compile None is kept instead of a test's name
        if os.path.isfile(self.path):
            with open(self.path, encoding="utf-8") as file:
                before = json.load(file)
            if before["run"] == run:
                self.faults = [(Fault(*fault), seen) for fault, seen in before["faults"]]

    def add(self, fault, seen):
        self.faults.append((fault, seen))
        with open(self.path + ".new", "w", encoding="utf-8") as file:
            json.dump({"run": self.run, "faults": self.faults}, file)
        os.replace(self.path + ".new", self.path)

    def results(self):
        return [(fault, seen) for fault, seen in self.faults if seen is not None]


def main():
    os.nice(10)
    os.makedirs(BASE, exist_ok=True)
    if sys.argv[1] == "again":
        drawn = listed_faults(sys.argv[2])
        count = len(drawn)
    else:
        count = int(sys.argv[1])
        paths = [path for path in listed("src/*.cpp") + listed("src/*.h") if path.startswith(sys.argv[3])]
        drawn = [fault for path in sorted(paths) for fault in faults_of(path)]
        random.Random(int(sys.argv[2])).shuffle(drawn)
        print(f"{len(drawn)} faults can be planted; {count} are drawn by chance from seed {sys.argv[2]}", flush=True)
    state = subprocess.run(["git", "describe", "--always", "--dirty"], check=True, capture_output=True, text=True)
    print(f"The tree is {state.stdout.strip()}", flush=True)
    names = [str(n) for n in range(int(os.environ.get("WORKERS", os.cpu_count() or 1)))]
    run = [state.stdout.strip(), *sys.argv[2:]]
    if sys.argv[1] == "again" or run[0].endswith("-dirty"):
        run.append(time.time())  # not the sources of any run before
    handled = Handled(run)
    before = {fault for fault, _ in handled.faults}
    waiting = queue.SimpleQueue()
    for fault in drawn:
        if fault not in before:
            waiting.put(fault)
    results, lock, start = handled.results(), threading.Lock(), time.monotonic()
    if results:
        print(f"{len(results)} of them were planted before", flush=True)

    def work(name):
        worker = Worker(name)
        while len(results) < count and not waiting.empty():
            fault = waiting.get()
            seen = worker.noticed(fault)
            with lock:
                handled.add(fault, seen)
                if seen is None or len(results) >= count:
                    continue
                results.append((fault, seen))
                print(f"{len(results):4} {(time.monotonic() - start) / 60:6.1f} min {fault.path}:{fault.number + 1}: "
                      f"{fault.line.strip()}   {seen or 'NOT NOTICED'}", flush=True)
                write_report(results)

    threads = [threading.Thread(target=work, args=(name,)) for name in names]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    noticed = sum(1 for _, seen in results if seen)
    print(f"{noticed} of {len(results)} faults noticed; the others are in {BASE}/survivors.txt")


if __name__ == "__main__":
    main()
