# SPDX-License-Identifier: MIT
"""Plants faults and counts those that the tests notice; started by mutate.sh.

A fault is one change on one line. Faults that do not compile are drawn again. Each worker has a copy of the sources
with a build of its own; the test programs of a fault are built and run one after another, that of the fault's folder
first, and the first that fails, crashes or takes far too long ends it.
"""
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
WORKERS = os.cpu_count() or 1
PATIENCE = 20  # seconds that a test program may take beyond four times what it takes without a fault
SWAPS = [(r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "), (r" == ", " != "), (r" != ", " == "),
         (r" && ", " || "), (r" \|\| ", " && "), (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " + "), (r" \+= ", " -= "),
         (r" -= ", " += "), (r" \|= ", " &= "), (r" &= ", " |= "), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
         (r"(?<=[(&|=] )!(?=\w)|(?<=\()!(?=\w)", "")]
NUMBER = re.compile(r"(?<![\w.\"'])(\d+)(?![\w.'])")
CALL = re.compile(r"^\s+(?!return\b|delete\b|case\b|else\b|if\b|for\b|while\b|EXPECT|static_assert|Require)"
                  r"[\w:.\->()\[\]]*\w\(.*\);$")
SKIPPED = re.compile(r"^\s*(//|#|\*|static_assert|using |namespace |template|friend |public:|private:)|KESTREL_|NOLINT")


def faults_of(path):
    """All faults of a file as (path, line number, new line)."""
    found = []
    with open(path, encoding="utf-8") as file:
        lines = file.read().split("\n")
    for number, line in enumerate(lines):
        if SKIPPED.search(line):
            continue
        code = line.split("//")[0]
        quotes = [m.span() for m in re.finditer(r'"(?:[^"\\]|\\.)*"', code)]

        def free(match):
            return not any(a <= match.start() < b for a, b in quotes)

        for pattern, other in SWAPS:
            for match in filter(free, re.finditer(pattern, code)):
                found.append((path, number, line[:match.start()] + other + line[match.end():]))
        for match in filter(free, NUMBER.finditer(code)):
            for value in {int(match[1]) + 1, max(int(match[1]) - 1, 0)} - {int(match[1])}:
                found.append((path, number, line[:match.start()] + str(value) + line[match.end():]))
        if CALL.match(code) and code.count("(") == code.count(")"):
            found.append((path, number, re.match(r"\s*", line)[0] + ";"))
    return found


class Worker:
    def __init__(self, name):
        self.root = f"{BASE}/{name}"
        self.build = f"{self.root}/build/mutate"
        shutil.rmtree(self.root, ignore_errors=True)
        files = subprocess.run(["git", "ls-files"], check=True, capture_output=True, text=True).stdout.split("\n")
        for path in filter(os.path.isfile, files):
            os.makedirs(os.path.dirname(f"{self.root}/{path}"), exist_ok=True)
            shutil.copy2(path, f"{self.root}/{path}")
        launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        configured = self.run(["cmake", "-S", self.root, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                               "-DCMAKE_CXX_FLAGS_DEBUG=-O1", *launcher], 300)
        if not configured or not self.make("all"):
            sys.exit(f"{self.root} does not build without a fault")
        self.seconds = {}
        for name in sorted(os.listdir(f"{self.build}/bin")):
            if name.endswith("_test"):
                start = time.monotonic()
                if not self.test(name, 600):
                    sys.exit(f"{name} fails without a fault")
                self.seconds[name] = time.monotonic() - start

    @staticmethod
    def run(command, limit, **options):
        """Whether a command ends well in time; all that it started ends with it."""
        with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              start_new_session=True, **options) as process:
            try:
                return process.wait(limit) == 0
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)
                return False

    def make(self, target):
        return self.run(["cmake", "--build", self.build, "-j", "2", "--target", target], 1800)

    def test(self, name, limit):
        return self.run([os.path.abspath(f"{self.build}/bin/{name}"), "--gtest_fail_fast", "--gtest_brief=1"], limit,
                        cwd=self.build)

    def order(self, path):
        """The test programs, that of the folder first, then from fast to slow."""
        own = set(path.split("/")[1:-1])
        return sorted(self.seconds, key=lambda name: (name[:-len("_test")] not in own, self.seconds[name]))

    def noticed(self, fault):
        """By which test program the fault is noticed; "" by none, None when it does not compile."""
        path, number, line = fault
        place = f"{self.root}/{path}"
        with open(path, encoding="utf-8") as file:
            lines = file.read().split("\n")
        try:
            with open(place, "w", encoding="utf-8") as file:
                file.write("\n".join(lines[:number] + [line] + lines[number + 1:]))
            for name in self.order(path):
                program = f"{self.build}/bin/{name}"
                before = os.stat(program).st_mtime_ns
                programs = self.programs()
                if not self.make(name):
                    return None
                if os.stat(program).st_mtime_ns == before and self.programs() == programs:
                    continue  # out of reach
                if not self.test(name, PATIENCE + 4 * self.seconds[name]):
                    return name
            return ""
        finally:
            with open(place, "w", encoding="utf-8") as file:
                file.write("\n".join(lines))

    def programs(self):
        return {name: os.stat(f"{self.build}/bin/{name}").st_mtime_ns
                for name in os.listdir(f"{self.build}/bin") if not name.endswith("_test")}


def main():
    count, seed, pattern = int(sys.argv[1]), int(sys.argv[2]), sys.argv[3]
    os.makedirs(BASE, exist_ok=True)
    paths = subprocess.run(["git", "ls-files", "src/*.cpp", "src/*.h"], check=True, capture_output=True, text=True)
    drawn = [fault for path in paths.stdout.split() if path.startswith(pattern) for fault in faults_of(path)]
    random.Random(seed).shuffle(drawn)
    print(f"{len(drawn)} faults can be planted; {count} are drawn by chance from seed {seed}", flush=True)
    workers = [Worker(str(n)) for n in range(WORKERS)]
    waiting = queue.SimpleQueue()
    for fault in drawn:
        waiting.put(fault)
    results, lock = [], threading.Lock()

    def work(worker):
        while len(results) < count and not waiting.empty():
            fault = waiting.get()
            name = worker.noticed(fault)
            with lock:
                if name is None or len(results) >= count:
                    continue
                results.append((fault, name))
                path, number, line = fault
                print(f"{len(results):4} {path}:{number + 1}: {line.strip()}   {name or 'NOT NOTICED'}", flush=True)

    threads = [threading.Thread(target=work, args=(worker,)) for worker in workers]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    with open(f"{BASE}/survivors.txt", "w", encoding="utf-8") as file:
        for (path, number, line), name in sorted(results):
            if not name:
                with open(path, encoding="utf-8") as source:
                    was = source.read().split("\n")[number].strip()
                file.write(f"{path}:{number + 1}\n  - {was}\n  + {line.strip()}\n")
    noticed = sum(1 for _, name in results if name)
    print(f"{noticed} of {len(results)} faults noticed; the others are in {BASE}/survivors.txt")


main()
