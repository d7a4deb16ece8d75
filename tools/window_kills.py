#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Kills the real window at moments drawn by chance and looks at what is left; called by tools/window_kills.sh.

window_kills.py BUILD KILLS SEED, on an X display of its own. A round starts the window on the home that the round before
left, plays with mouse and keys as a player does (solves puzzles with new best times, renews a level, or both), and kills it
with SIGKILL: at any moment of that, or around the click that solves a puzzle. Then every record of the stock must stand the
check of `stock verify` (a level in the middle of its renewal may have to be repaired), every best time that was congratulated on must be there, the settings must be whole; and the next
start must open the main window without a message and leave no temporary.
"""
import collections
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

BUILD, KILLS, SEED = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
RECORD, GIVENS, SOLUTION, BEST = 222, 6, 87, 168
CELL, PITCH, MARK = 840, 240, 127  # twips; 15 of them are a pixel
BOX, QUESTION = "New Best Time!", "Renew Selected Set of Sudokus"
SETTINGS = '[Options]\nLevel="1"\n[Players]\nCount="1"\nPlayer01="Ann             "\nLast_Player="1"\n'
MESSAGES = "File Error|Critical Error!"


def edge(line):
    return 960 + CELL * line + 120 * (line // 3)


def xdotool(*words):
    return subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True, check=False).stdout.split()


class Home:
    """The folder of the game's data, and what must be in it."""

    def __init__(self, path):
        self.path = path
        self.stock_path = path + "/KestrelSudoku/sudstock.kpz"
        self.settings_path = path + "/settings.ini"
        self.congratulated = {}  # (level, givens): best time
        self.renewing = set()  # levels whose renewal was asked for in this round
        os.makedirs(path)
        with open(self.settings_path, "w", encoding="ascii") as file:
            file.write(SETTINGS)

    def temporaries(self):
        folder = os.path.dirname(self.stock_path)
        return os.path.isdir(folder) and [name for name in os.listdir(folder) if name.startswith(".kestrel-")]

    def stock(self):
        try:
            with open(self.stock_path, "rb") as file:
                return file.read()
        except FileNotFoundError:
            return b""

    def record(self, level, number):
        place = RECORD * ((level - 1) * 100 + number - 1)
        return self.stock()[place : place + RECORD]

    def last_puzzle(self, level):
        with open(self.settings_path, encoding="ascii") as file:
            found = re.search(rf'Level0{level}="(\d+)"', file.read())
        return int(found[1]) if found else 0

    def times(self):
        stock = self.stock()
        found = {}
        for place in range(0, len(stock), RECORD):
            record = stock[place : place + RECORD]
            found[place // RECORD // 100 + 1, record[GIVENS : GIVENS + 81]] = record[BEST : BEST + 6]
        return found

    def command(self, word):
        return subprocess.run([BUILD + "/bin/kestrel-sudoku-cli", "stock", word, self.stock_path], capture_output=True,
                              text=True, check=False)

    def faults(self):
        verified = self.command("verify")
        return [] if verified.returncode == 0 else verified.stdout.splitlines() or [verified.stderr]

    def losses(self):
        """What is not as it must be."""
        lost = []
        stock = self.stock()
        faults = self.faults() if stock else []
        if faults and all(re.match(r"level (\d) number \d+: score", fault) and int(fault[6]) in self.renewing for fault in faults):
            # A best time was stored in the middle of a renewal: good puzzles, some new, one with the score of the floor.
            counts["levels left half renewed, and repaired"] += 1
            self.command("repair")
            faults = self.faults()
        lost += faults
        if not stock and self.congratulated:
            lost.append("no stock")
        times = self.times()
        for key in list(self.congratulated):
            if key not in times and key[0] in self.renewing:
                del self.congratulated[key]  # renewed, as was asked for
            elif times.get(key) != self.congratulated[key]:
                lost.append(f"best time of level {key[0]}")
        with open(self.settings_path, encoding="ascii") as file:
            settings = file.read()
        if 'Player01="Ann             "' not in settings or not re.search(r'(?m)^Level="[1-5]"$', settings):
            lost.append("settings")
        return lost


class Window:
    """The running program, and a player at it. Functions return False when the program is gone."""

    def __init__(self, home):
        self.home = home
        self.process = subprocess.Popen([BUILD + "/bin/kestrel-sudoku", "--home", home.path, "--scale", "1"],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.left = self.top = 0

    def alive(self):
        return self.process.poll() is None

    def wait(self, condition, seconds=20.0):
        end = time.monotonic() + seconds
        while self.alive() and time.monotonic() < end:
            found = condition()
            if found:
                return found
            time.sleep(0.01)
        return None

    def find(self, name):
        return xdotool("search", "--onlyvisible", "--name", f"^({name})")

    def open(self):
        """Until the main window can be used. A message instead is a loss."""
        shown = self.wait(lambda: self.find("Kestrel Sudoku - |" + MESSAGES))
        if not shown or self.find(MESSAGES):
            return False
        place = xdotool("getwindowgeometry", "--shell", shown[0])
        values = dict(line.split("=") for line in place)
        self.left, self.top = int(values["X"]), int(values["Y"])
        return True

    def click_at(self, x, y):
        xdotool("mousemove", self.left + x // 15, self.top + y // 15, "click", 1)

    def choose_level(self, level):
        self.click_at(9400, 720 + 330 * (level - 1) + 150)

    def solve_next(self, level, before_last):
        before = self.home.last_puzzle(level)
        self.click_at(1380, 9180)
        if not self.wait(lambda: self.home.last_puzzle(level) != before, 3):
            return False
        opened = time.monotonic()
        number = self.home.last_puzzle(level)
        record = self.home.record(level, number)
        places = []
        for cell in range(81):
            if record[GIVENS + cell] != 0:
                continue
            digit = record[SOLUTION + cell] - 1
            places.append((edge(cell % 9) + PITCH * (digit % 3) + MARK, edge(cell // 9) + PITCH * (digit // 3) + MARK))
        words = []
        for x, y in places[:-1]:
            words += ["mousemove", self.left + x // 15, self.top + y // 15, "click", 1]
        xdotool(*words)
        time.sleep(max(0.0, opened + 1.4 - time.monotonic()))
        before_last()
        self.click_at(*places[-1])
        box = self.wait(lambda: self.find(BOX), 3)
        if not box:
            return self.alive()
        key = level, record[GIVENS : GIVENS + 81]
        self.home.congratulated[key] = self.home.times()[key]
        counts["best times congratulated on"] += 1
        xdotool("key", "--window", box[0], "Return")
        return self.wait(lambda: not self.find(BOX), 3)

    def renew(self, level):
        self.click_at(10900, 720 + 330 * (level - 1) + 150)
        question = self.wait(lambda: self.find(QUESTION), 3)
        if question:
            self.home.renewing.add(level)
            xdotool("key", "--window", question[0], "alt+o")
            self.wait(lambda: not self.find(QUESTION), 3)
        return bool(question)


def play(window, chance, kind, kill_around_click):
    level = chance.randint(1, 3)
    window.choose_level(level)
    if kind != "solving":
        window.renew(level % 3 + 1)  # never the chosen one
    while window.alive():
        if kind == "renewing":
            time.sleep(0.05)
        else:
            window.solve_next(level, kill_around_click)


def one_round(home, chance):
    home.renewing = set()
    kind = chance.choice(["solving", "solving", "solving", "renewing", "both"])
    window = Window(home)
    lost = []
    before = home.stock()

    def kill_after(seconds):
        timer = threading.Timer(seconds, lambda: window.process.send_signal(signal.SIGKILL))
        timer.daemon = True
        timer.start()

    around_click = kind != "renewing" and chance.random() < 0.5
    clicks = [chance.randint(1, 2)]  # solve that many, then kill around the last click

    def before_last():
        clicks[0] -= 1
        if around_click and clicks[0] == 0:
            kill_after(chance.uniform(0.0, 0.12))

    if not around_click and chance.random() < 0.2:
        kill_after(chance.uniform(0.0, 1.0))  # in the middle of the start
    elif around_click:
        kill_after(30.0)
    if window.open():
        if home.temporaries():
            lost.append("temporary left")
        if not around_click:
            kill_after(chance.uniform(0.0, 6.0))
        play(window, chance, kind, before_last)
    elif window.alive():
        lost.append("no main window, or a message")
        window.process.kill()
    ended = window.process.wait()
    if ended != -signal.SIGKILL:
        lost.append(f"ended by itself with {ended}")
    counts["kills"] += 1
    counts[kind] += 1
    if around_click:
        counts["around the click that solves"] += 1
    if home.stock() != before:
        counts["kills after the stock was written"] += 1
    if home.renewing and any(level not in {key[0] for key in home.times() if key in before_keys(before)} for level in home.renewing):
        counts["renewals that were on the disk"] += 1
    lost += home.losses()
    if home.temporaries():
        counts["kills in the middle of a write"] += 1
    return lost


def before_keys(stock):
    return {(place // RECORD // 100 + 1, stock[place + GIVENS : place + GIVENS + 81]) for place in range(0, len(stock), RECORD)}


counts = collections.Counter()


def main():
    chance = random.Random(SEED)
    folder = tempfile.mkdtemp()
    losses = 0
    home = None
    for number in range(KILLS):
        if number % 25 == 0:
            home = Home(f"{folder}/home{number}")
        lost = one_round(home, chance)
        if lost:
            losses += 1
            print(f"round {number + 1}: {', '.join(lost)}; kept in {home.path}", flush=True)
            home = Home(f"{folder}/after{number}")
        if (number + 1) % 25 == 0:
            print(number + 1, dict(counts), flush=True)
    for name, count in counts.items():
        print(f"{count:6} {name}")
    print(f"{losses:6} rounds with a loss")
    if losses == 0:
        shutil.rmtree(folder)
    return 1 if losses else 0


sys.exit(main())
