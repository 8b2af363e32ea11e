"""Puts one fault at a time into a copy of the tree, builds what depends on it, plays the transcripts and runs the tests, and
tells who noticed: a test of the tests. The copies lie in build/mutate and are kept, so that the next run begins sooner."""

import argparse
import concurrent.futures
import contextlib
import fcntl
import hashlib
import itertools
import json
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import threading
import time

from faults import Source

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build/mutate"
FOLDERS = ["zilvo/buttons", "zilvo/seats", "zilvo/setup", "zilvo/framework", "zilvo/platform"]
COMPONENT, GALLERY = "bin/ZilvoButtons-445.Ocx", "bin/Gallery.Ocx"
# How it builds quickest, and without tests being run by the build.
OPTIONS = ["-G", "Ninja", "-DCMAKE_CXX_COMPILER=clang++", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-w",
           "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0", "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST",
           *(f"-DCMAKE_{kind}_LINKER_FLAGS=-fuse-ld=lld" for kind in ("EXE", "SHARED", "MODULE"))]
# The headers that no fault is put into are compiled once.
PRECOMPILE = """function(precompile)
    foreach(target zilvo-platform ZilvoButtons zilvo gallery zilvo-tests)
        target_precompile_headers(${target} PRIVATE %s)
    endforeach()
    target_precompile_headers(zilvo-tests PRIVATE <gtest/gtest.h> <nlohmann/json.hpp>)
endfunction()
cmake_language(DEFER CALL precompile)
"""
# Tests that are not run again, try what the console host makes of faults of its own or build other projects.
NOT_RUN = re.compile(r"transcript\.|transcripts$|validate$|consumers\.")
SLOW = "FilesTest.*:Registration*:Runtime.*"  # of the unit tests: whole processes and files
LONGEST = 600  # seconds for a build or for the slow tests together
NOT_BUILT, SAME, SURVIVED = "does not build", "changes nothing that is built", "survived"


def read_tree():
    """The files that git knows, or would, with their modes."""
    listed = subprocess.run(["git", "ls-files", "-coz", "--exclude-standard"], cwd=ROOT, check=True, capture_output=True)
    paths = {name: ROOT / name for name in os.fsdecode(listed.stdout).split("\0") if name}
    return {name: (path.read_bytes(), path.stat().st_mode) for name, path in paths.items() if path.is_file()}


def faults_in(files, folder):
    excepted = set()
    for line in files["tools/mutate-exceptions"][0].decode().splitlines():
        if line and not line.startswith("#"):
            exception = re.fullmatch(r"([^|]+)\|(.+)\|([A-Za-z ]+|\*)\|([^|]+)", line)
            if not exception:
                raise SystemExit(f"tools/mutate-exceptions: not FILE|TEXT|KIND|REASON: {line}")
            excepted.add(exception.groups()[:3])
    for name in sorted(files):
        if f"{name}/".startswith(f"{folder}/") and name.endswith((".h", ".cpp")):
            for fault in Source(name, files[name][0].decode()).find_faults():
                if excepted.isdisjoint((fault.file, fault.text, kind) for kind in (fault.kind, "*")):
                    yield fault


class Stopped(Exception):
    pass


class Worker:
    """Builds and tests in a copy of the tree of its own."""

    def __init__(self, number, files):
        self.files, self.folder = files, WORK / str(number)
        self.tree, self.build, self.temporary = (self.folder / name for name in ("tree", "build", "tmp"))
        self.environment = os.environ | {"TMPDIR": str(self.temporary),
                                         "ZILVO_REGISTRATIONS": str(self.folder / "no-registrations")}
        self.process, self.is_stopped, self.output, self.limits = None, False, "", {}

    def run(self, *command, limit=LONGEST):
        """Whether the command succeeds in that many seconds; leaves what it prints in `output`."""
        if self.is_stopped:
            raise Stopped
        with open(self.folder / "output", "w+", errors="replace") as printed:
            self.process = subprocess.Popen(command, cwd=self.build, env=self.environment, stdin=subprocess.DEVNULL,
                                            stdout=printed, stderr=subprocess.STDOUT, start_new_session=True)
            try:
                succeeds = self.process.wait(limit) == 0
            except subprocess.TimeoutExpired:
                succeeds = False
                self.kill()
            printed.seek(0)
            self.output = printed.read(1_000_000)
        if self.is_stopped:
            raise Stopped
        return succeeds

    def kill(self):
        """Asks first, because ninja ends what it has started then."""
        for how in (signal.SIGTERM, signal.SIGKILL):
            if self.process and self.process.poll() is None:
                os.killpg(self.process.pid, how)
                with contextlib.suppress(subprocess.TimeoutExpired):
                    self.process.wait(5)

    def stop(self):
        self.is_stopped = True
        self.kill()

    def need(self, succeeds, what):
        if not succeeds:
            raise SystemExit(f"{what}:\n{self.output[-3000:]}")

    def write(self, name, content):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        now = time.time_ns()  # the file system's clock is too coarse for ninja to see a change right after a build
        os.utime(path, ns=(now, now))

    def copy_tree(self):
        for name, (content, mode) in self.files.items():
            path = self.tree / name
            if not path.is_file() or path.read_bytes() != content:
                self.write(name, content)
            path.chmod(mode)
        for path in self.tree.rglob("*"):
            if path.is_file() and str(path.relative_to(self.tree)) not in self.files:
                path.unlink()

    def prepare(self):
        """Builds the tree as it is and sees it pass."""
        self.copy_tree()
        self.build.mkdir(exist_ok=True)
        sources = b"".join(content for name, (content, _) in self.files.items() if name.startswith("zilvo/"))
        standard = sorted(set(re.findall(r"^#include (<[a-z_]+>)", sources.decode(), re.MULTILINE)))
        precompile = self.folder / "precompile.cmake"
        precompile.write_text(PRECOMPILE % " ".join(standard))
        configure = ["cmake", "-S", str(self.tree), "-B", str(self.build), f"-DCMAKE_PROJECT_INCLUDE={precompile}", *OPTIONS]
        self.need(self.run(*configure) and self.run("ninja", "-j1"), "the tree does not build")
        products = sorted(f"bin/{path.name}" for path in (self.build / "bin").iterdir())
        self.unchanged = {product: self.digest(product) for product in products}
        self.need(self.run("ctest", "--show-only=json-v1"), "ctest lists no tests")
        listed = ((test["name"], test["command"][0]) for test in json.loads(self.output)["tests"])
        self.others = [name for name, program in listed if not program.endswith("zilvo-tests") and not NOT_RUN.match(name)]
        # The console host of the unchanged tree plays the transcripts first: it is long in building where a header has
        # changed, and most faults in headers show without.
        self.stages = [("transcripts", ["bin/libzilvo-platform.so", COMPONENT]), ("transcripts", [GALLERY]),
                       ("docs", [COMPONENT]), ("unit tests", ["bin/zilvo-tests"]), ("transcripts", ["bin/zilvo"]),
                       ("others", products)]
        for who, products in self.stages:
            started = time.monotonic()
            noticed = self.test(who, products)
            self.need(not noticed, f"the unchanged tree does not pass: {noticed}")
            self.limits[who] = max(5 * (time.monotonic() - started), self.limits.get(who, 30))

    def digest(self, product):
        return hashlib.sha256((self.build / product).read_bytes()).digest()

    def commands(self, who, products, file):
        if who == "transcripts":
            component, folder = (GALLERY, "transcripts/gallery") if GALLERY in products else (COMPONENT, "transcripts")
            scripts = sorted(map(str, (self.tree / "tests" / folder).glob("*.lua")))
            own = [script for script in scripts if pathlib.Path(script).stem == pathlib.Path(file).stem]
            for played in filter(None, (own, scripts)):
                yield ["bin/zilvo", "--component", component, "transcript", *played]
        elif who == "docs":
            yield ["ctest", "-R", "^docs$"]  # the pictures of all controls
        elif who == "unit tests":
            for chosen in (f"-{SLOW}", SLOW):
                yield ["bin/zilvo-tests", "--gtest_brief=1", "--gtest_fail_fast", f"--gtest_filter={chosen}"]
        else:
            for is_slow in (False, True):
                names = [re.escape(name) for name in self.others if name.startswith("validate") == is_slow]
                yield ["ctest", "--stop-on-failure", "--timeout", "60", "-R", f"^({'|'.join(names)})$"]

    def test(self, who, products, file=""):
        """Who of a stage notices a fault, or None. A test that takes far longer than usual does."""
        shutil.rmtree(self.temporary, ignore_errors=True)
        self.temporary.mkdir()
        for command in self.commands(who, products, file):
            if not self.run(*command, limit=LONGEST if who == "others" else self.limits.get(who, LONGEST)):
                failed = re.search(r"Test +#\d+: (\S+) [. ]*\*\*\*", self.output)
                return failed[1] if failed else who
        return None

    def judge(self, fault):
        """Who notices the fault, the quickest first, or why nobody does."""
        content = self.files[fault.file][0]
        text = content.decode()
        self.write(fault.file, (text[: fault.start] + fault.new + text[fault.end :]).encode())
        try:
            built, verdict = set(), SAME
            for who, products in self.stages:
                if not built and self.digest("bin/zilvo") != self.unchanged["bin/zilvo"]:
                    products = [*products, "bin/zilvo"]  # it has an earlier fault
                if not self.run("ninja", "-j1", *products):
                    return NOT_BUILT
                built.update(products)
                if any(self.digest(product) != self.unchanged[product] for product in built):
                    verdict = SURVIVED
                    if noticed := self.test(who, products, fault.file):
                        return noticed
            return verdict
        finally:
            self.write(fault.file, content)

    def check(self):
        self.need(self.run("ninja", "-j1"), "the tree does not build any more")
        is_same = all(self.digest(product) == was for product, was in self.unchanged.items())
        self.need(is_same, f"the tree is not what it was; remove {self.folder} and start again")


def judge(faults, files, jobs, log):
    """The faults with their verdicts, and whether it came to its end."""
    results, lock, started = [], threading.Lock(), time.monotonic()
    # A worker stays with a file for a while, because what depends on the file is built anyway when it is restored.
    # Headers come last: behind one nearly everything is built again.
    faults = sorted(faults, key=lambda fault: (fault.file.endswith(".h"), fault))
    groups = [list(group) for _, group in itertools.groupby(faults, lambda fault: fault.file)]
    pieces = iter([group[at : at + 10] for group in groups for at in range(0, len(group), 10)])
    workers = [Worker(number, files) for number in range(1, jobs + 1)]

    def stop():
        for worker in workers:
            worker.stop()

    def work(worker):
        try:
            worker.prepare()
            while True:
                with lock:
                    piece = next(pieces, None)
                if not piece:
                    break
                for fault in piece:
                    began = time.monotonic()
                    verdict = worker.judge(fault)
                    line = f"{fault}  {verdict}  {time.monotonic() - began:.1f} s"
                    with lock:
                        results.append((fault, verdict))
                        print(line, file=log, flush=True)
                        minutes = (time.monotonic() - started) / 60
                        print(f"[{len(results)}/{len(faults)}, {minutes:.0f} min]  {line}", file=sys.stderr)
            worker.check()
        except BaseException:
            stop()
            raise

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        running = [pool.submit(work, worker) for worker in workers]
        try:
            concurrent.futures.wait(running)
        except KeyboardInterrupt:
            stop()
            return results, False
    for error in filter(None, (ended.exception() for ended in running)):
        if not isinstance(error, Stopped):
            raise error
    return results, True


def report(results):
    counts = {}
    for fault, verdict in sorted(results):
        if verdict == SURVIVED:
            print(f"{fault}  {SURVIVED}")
        parts = [part for part in pathlib.PurePath(fault.file).parts[:-1] if part != "zilvo"]
        for folder in ["/".join(parts[: end + 1]) for end in range(len(parts))] + ["total"]:
            count = counts.setdefault(folder, {"transcripts": 0, "unit tests": 0, "others": 0, SURVIVED: 0})
            if verdict not in (NOT_BUILT, SAME):
                count[verdict if verdict in count else "others"] += 1
    print("\nfolder                faults  noticed  by transcripts  by unit tests  by others  survived    score")
    for folder in sorted(counts, key=lambda name: (name == "total", name)):
        *by, survived = counts[folder].values()
        score = f"{100 * sum(by) / (sum(by) + survived):.1f} %" if any(by) or survived else "-"
        print(f"{folder:20}  {sum(by) + survived:6}  {sum(by):7}  {by[0]:14}  {by[1]:13}  {by[2]:9}  {survived:8}  {score:>7}")
    for why in (NOT_BUILT, SAME):
        print(f"not counted, as it {why}: {sum(verdict == why for _, verdict in results)}")


def main():
    parser = argparse.ArgumentParser(prog="tools/mutate", description=__doc__)
    parser.add_argument("folders", nargs="*", metavar="FOLDER", default=FOLDERS, help="a folder or file of the library")
    parser.add_argument("--sample", type=int, metavar="N", help="only N faults, drawn by chance")
    parser.add_argument("--seed", type=int, default=0, metavar="S", help="the same ones for the same S")
    parser.add_argument("--list", action="store_true", help="prints the faults and builds nothing")
    parser.add_argument("--jobs", type=int, default=2, metavar="N", help="how many copies to work in at a time")
    parser.add_argument("--log", type=pathlib.Path, default=WORK / "log", metavar="FILE", help="gets each result at once")
    given = parser.parse_args()
    if given.jobs < 1:
        parser.error("it takes at least one job")
    files, faults = read_tree(), set()
    for folder in given.folders:
        found = set(faults_in(files, folder.rstrip("/")))
        if not found:
            parser.error(f"there are no faults to put into {folder}")
        faults |= found
    faults = sorted(faults)
    if given.sample is not None:
        faults = sorted(random.Random(given.seed).sample(faults, min(given.sample, len(faults))))
    if given.list:
        print(*faults, sep="\n")
        return 0
    # A fault may take all memory or fill the disk, and the crashes leave nothing behind. A test makes a file of 2 GiB.
    for what, most in (resource.RLIMIT_AS, 4 << 30), (resource.RLIMIT_FSIZE, 3 << 30), (resource.RLIMIT_CORE, 0):
        resource.setrlimit(what, (most, most))
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    WORK.mkdir(parents=True, exist_ok=True)
    with open(WORK / "lock", "w") as alone:
        try:
            fcntl.flock(alone, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            parser.error(f"another run is at work in {WORK}")
        with open(given.log, "w") as log:
            results, is_complete = judge(faults, files, given.jobs, log)
    report(results)
    return 0 if is_complete else 130


if __name__ == "__main__":
    sys.exit(main())
