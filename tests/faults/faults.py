"""Attacks the program's file work from outside and looks at what is left on the disk.

faults.py FILE_WORK: FILE_WORK carries out one operation on a program folder (see FileWork.cpp).
Everything is read here with other code than the program's own. Prints how many faults were injected,
fired and survived; fails unless all three numbers are equal. Started by faults.sh.
"""
import collections
import concurrent.futures
import os
import re
import resource
import shutil
import subprocess
import sys
import tempfile
import threading
import time
from functools import partial

FILE_WORK = sys.argv[1]
WORKERS = 2
TIME_LIMIT = 60  # seconds for one run of the program

# Where the program is killed: disk contents change only within these calls. strace kills on entry,
# before the call is carried out, so the moment behind a call is the one before the next; behind the
# last one the operation is over.
CHANGING = """open openat creat write pwrite64 fsync fdatasync close rename renameat renameat2 link
    linkat unlink unlinkat rmdir chmod fchmod fchmodat ftruncate""".split()
# Where a call can fail besides.
LOOKING = """read pread64 stat lstat fstat newfstatat statx access faccessat faccessat2 readlink
    readlinkat getdents64 flock""".split()

# Where the system can say that the user has stored as much as he may.
STORING = "open openat creat write pwrite64 fsync fdatasync close rename".split()

REASONS = {
    "ENOSPC": "kein Platz mehr",
    "EDQUOT": "kein Platz mehr",
    "EIO": "ein Fehler aufgetreten",
    "EROFS": "Der Datenträger ist schreibgeschützt",
    "EACCES": "Der Zugriff wurde verweigert",
    "EPERM": "Der Zugriff wurde verweigert",
    "EMFILE": "zu viele Dateien geöffnet",
}


# ---- The world -----------------------------------------------------------------------------------

def lines(*texts):
    return "".join(text + "\r\n" for text in texts).encode("cp1252")


def weapon(name):
    """A record of the sibling tool, with the line before it."""
    fields = ["-"] * 28
    fields[0], fields[1], fields[3], fields[10], fields[26] = name, "40", "Schwer", "15", "Silber"
    fields[27] = "BO|GA|"
    return lines("--", *fields)


MANTLE = lines("Mantel3", "0,5", "20D", " Blau, mit | bestickt ", "BO|EL|FI|")
SLEEVE = lines("Ärmel1", "", "5S", "", "")
PLAIT = b"Zopf5\r\n2\r\n5S\r\nF\x81r den Regen\r\nBO|\r\n"
LANTERN = lines("Laterne 23", "7", "8H", "", "")
DAGGER = lines("Dolch2", "20", "12S", "Ein einfacher Dolch", "BO|GA|TH|")
AXE = lines("Streitaxt1", "40", "15S", "Schwer", "BO|GA|")
BOW = lines("Bogen2", "10", "20S", "", "TH|")
HOOD = lines("Kapuze2", "3", "7S", "", "")
PATCHED = lines("Ärmel1", "", "5S", "Geflickt", "")
LIST = ["Nahkampfwaffen", "Fernwaffen", "Rüstungen", "Kleidung", "Öllampen", "Abakus"]


def list_file(names):
    return lines(f" {len(names)} ", *names)


# The program folder before the start. The lamps' file is a link that leads out of the folder.
FRESH = {
    "Data/Emporium/ItemKategorien.dat": list_file(LIST),
    "Data/Emporium/Nahkampfwaffen.dat": DAGGER,
    "Data/Emporium/EmporiumFernwaffen.dat": BOW,
    "Data/Emporium/Rüstungen.dat": b"",
    "Data/Emporium/Kleidung.dat": MANTLE + SLEEVE + PLAIT,
    "Fremd/Öllampen.dat": LANTERN,
    "Data/Emporium/Abakus.dat": b"",
    "Data/Arsenal/Nahkampfwaffen.dat": lines("Waffen") + weapon("Dolch") + weapon("Streitaxt"),
    "Data/Atlas/Regionen.dat": lines("[BO]", "Desc=Bornland"),
    "HTML/Laden.html": b"<html>alt</html>",
    "Temp/Temp.html": b"<html>alt</html>",
}
LINK = ("Data/Emporium/Öllampen.dat", "../../Fremd/Öllampen.dat")


def with_changes(files, **changed):
    """The world with other files below Data/Emporium; None removes one."""
    world = dict(files)
    for name, contents in changed.items():
        key = f"Data/Emporium/{name}.dat"
        world.pop(key, None)
        if contents is not None:
            world[key] = contents
    return world


STARTED = with_changes(FRESH, Nahkampfwaffen=DAGGER + AXE, Fernwaffen=BOW, EmporiumFernwaffen=None)
SHOP_PAGE = "a shop's page"  # its text is the unit tests' business; here it must only be whole


def lamps(world, contents):
    return {**world, "Fremd/Öllampen.dat": contents}


# Each operation with the world before and after it.
OPERATIONS = {
    "start": (FRESH, STARTED),
    "save-new": (STARTED, with_changes(STARTED, Kleidung=MANTLE + SLEEVE + PLAIT + HOOD)),
    "save-changed": (STARTED, with_changes(STARTED, Kleidung=MANTLE + PATCHED + PLAIT)),
    "move": (STARTED, lamps(with_changes(STARTED, Kleidung=MANTLE + PLAIT), LANTERN + SLEEVE)),
    "delete": (STARTED, with_changes(STARTED, Kleidung=MANTLE + PLAIT)),
    "new-category": (STARTED, with_changes(STARTED, ItemKategorien=list_file(LIST + ["Neues"]),
                                           Neues=b"")),
    "delete-category": (STARTED, with_changes(STARTED, ItemKategorien=list_file(LIST[:-1]),
                                              Abakus=None)),
    "export": (STARTED, {**STARTED, "HTML/Laden.html": SHOP_PAGE}),
    "print": (STARTED, {**STARTED, "Temp/Temp.html": SHOP_PAGE}),
}


def write(path, contents):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as file:
        file.write(contents)


def build(root, world):
    shutil.rmtree(root, ignore_errors=True)
    for name, contents in world.items():
        write(os.path.join(root, name), contents)
    os.symlink(LINK[1], os.path.join(root, LINK[0]))
    os.chmod(os.path.join(root, "Data/Emporium/Kleidung.dat"), 0o640)


def is_stray(name):
    return ".orvan-" in name


def is_shop_page(contents):
    return (contents.startswith(b"<html>\r\n<head>") and contents.endswith(b"</table>\r\n")
            and contents.count(b"Fackel") == 300)


def look(root):
    """What stands in the folder: contents by name, and the names of stray files."""
    found, strays = {}, []
    for folder, _, names in os.walk(root):
        for name in names:
            path = os.path.join(folder, name)
            key = os.path.relpath(path, root)
            if is_stray(name):
                strays.append(key)
            elif key != LINK[0]:
                with open(path, "rb") as file:
                    contents = file.read()
                found[key] = SHOP_PAGE if is_shop_page(contents) else contents
    return found, strays


def kept_in_form(root):
    link = os.path.join(root, LINK[0])
    mode = os.stat(os.path.join(root, "Data/Emporium/Kleidung.dat")).st_mode & 0o777
    return os.path.islink(link) and os.readlink(link) == LINK[1] and mode == 0o640


# ---- Running the program -------------------------------------------------------------------------

class Outcome:
    def __init__(self, status, output):
        self.status = status
        self.boxes = output.decode("cp1252", "replace").splitlines()


def run(root, operation, wrap=(), **options):
    result = subprocess.run([*wrap, FILE_WORK, root, operation], stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, timeout=TIME_LIMIT, check=False, **options)
    return Outcome(result.returncode, result.stdout)


def traced(root, operation, *injections):
    """Runs under strace; the log tells the calls with the paths of their files."""
    log = root.rstrip("/") + ".log"
    calls = ",".join("?" + name for name in CHANGING + LOOKING)
    wrap = ["strace", "-f", "-qq", "-y", "-s0", "-o", log, "-e", "trace=" + calls]
    for injection in injections:
        wrap += ["-e", "inject=" + injection]
    outcome = run(root, operation, wrap)
    with open(log, encoding="utf-8", errors="replace") as file:
        outcome.log = file.read()
    return outcome


Call = collections.namedtuple("Call", "name number file result")


def calls_on(root, log):
    """The calls that concern the program folder, each with its number among those of its name."""
    numbers = collections.Counter()
    found = []
    for line in log.splitlines():
        match = re.match(r"(?:\d+ +)?(\w+)\(", line)
        if not match:
            continue
        name = match.group(1)
        numbers[name] += 1
        if root in line:
            escaped = re.split(r'[">]', line.split(root, 1)[1])[0].lstrip("/") or "."
            file = escaped.encode().decode("unicode_escape").encode("latin-1").decode()
            result = re.search(r"= (\d+)$", line)
            found.append(Call(name, numbers[name], file, int(result[1]) if result else 0))
    return found


# ---- What must hold ------------------------------------------------------------------------------

def expect(holds, message):
    if not holds:
        raise AssertionError(message)


def expect_world(root, allowed, when):
    found, strays = look(root)
    wrong = [name for name in found.keys() | allowed[0].keys() | allowed[-1].keys()
             if found.get(name) not in [world.get(name) for world in allowed]]
    expect(found in allowed, f"{when}: neither as before nor as after, {wrong or 'mixed'}")
    expect(kept_in_form(root), f"{when}: a link or a mode was not kept")
    return found, strays


def expect_clean_after_start(root, allowed):
    """A restart tells nothing, finishes what was begun, and leaves no stray file."""
    outcome = run(root, "start")
    expect(outcome.status == 0 and not outcome.boxes, f"the restart says {outcome.boxes}")
    strays = expect_world(root, allowed, "after the restart")[1]
    expect(not strays, f"stray files {strays}")


def expect_told_or_done(root, operation, outcome, reason):
    """After a run with a failure: told in one box and undone, or done."""
    before, after = OPERATIONS[operation]
    expect(outcome.status == 0, f"ended with {outcome.status}")
    expect(len(outcome.boxes) <= 1, f"more than one box: {outcome.boxes}")
    if outcome.boxes:
        box = outcome.boxes[0]
        expect(re.search(r"\.(dat|html|orvan-)|Datei: ", box), f"the box names no file: {box}")
        expect(reason in box, f"the box does not tell the reason '{reason}': {box}")
    if operation == "start":
        expect_each_file(root, before, after)
    else:
        expect_world(root, [before] if outcome.boxes else [after], "after the fault")


def expect_each_file(root, before, after):
    """The start does several things, each of which is done or not."""
    found = look(root)[0]
    expect(found["Data/Emporium/Nahkampfwaffen.dat"] in (DAGGER, DAGGER + AXE), "a broken import")
    renamed = "Data/Emporium/Fernwaffen.dat"
    older = "Data/Emporium/EmporiumFernwaffen.dat"
    expect((found.get(renamed) == BOW) != (found.get(older) == BOW), "half renamed")
    same = {name: before[name] for name in before.keys() & after.keys()
            if before[name] == after[name]}
    expect(same.items() <= found.items(), "a file that is none of the start's business")


def expect_works_now(root, operation, outcome):
    after = OPERATIONS[operation][1]
    if outcome.boxes:
        again = run(root, operation)
        expect(not again.boxes, f"the same command says afterwards: {again.boxes}")
    expect_world(root, [after], "done in the end")
    expect_clean_after_start(root, [after])


# ---- The attacks ---------------------------------------------------------------------------------

class Tally:
    def __init__(self):
        self.lock = threading.Lock()
        self.counts = collections.defaultdict(lambda: [0, 0, 0])
        self.failures = []

    def attack(self, kind, what, attempt):
        """`attempt` returns whether the fault fired, None if there was no need for one, and raises
        if it was not survived. True if it was."""
        fired = survived = 0
        try:
            result = attempt()
            if result is None:
                return False
            fired = survived = int(result)
            fault = None if fired else "did not fire"
        except (AssertionError, subprocess.TimeoutExpired, OSError) as error:
            fired, fault = 1, str(error)
        with self.lock:
            for i, number in enumerate((1, fired, survived)):
                self.counts[kind][i] += number
            if fault:
                self.failures.append(f"{kind}, {what}: {fault}")
        return survived == 1


TALLY = Tally()
PLACE = threading.local()
BASE = tempfile.mkdtemp(prefix="faults-", dir="/dev/shm" if os.path.isdir("/dev/shm") else None)


def place():
    """A program folder of the present thread."""
    if not hasattr(PLACE, "root"):
        PLACE.root = os.path.join(BASE, f"{threading.get_ident():x}"[-12:])
    return PLACE.root


def attempt_kill(operation, call):
    root = place()
    before, after = OPERATIONS[operation]
    build(root, before)
    outcome = traced(root, operation, f"{call.name}:signal=SIGKILL:when={call.number}")
    if outcome.status >= 0:
        return False
    allowed = [after] if operation == "start" else [before, after]
    expect_clean_after_start(root, allowed)
    return True


def attempt_error(operation, call, error):
    root = place()
    build(root, OPERATIONS[operation][0])
    outcome = traced(root, operation, f"{call.name}:error={error}:when={call.number}")
    if "(INJECTED)" not in outcome.log:
        return False
    expect_told_or_done(root, operation, outcome, REASONS[error])
    expect_works_now(root, operation, outcome)
    return True


def attempt_size_limit(operation, size):
    """The system itself writes a part, and refuses the rest."""
    root = place()
    build(root, OPERATIONS[operation][0])
    outcome = run(root, operation, restore_signals=False,  # Python ignores SIGXFSZ
                  preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (size, size)))
    if not outcome.boxes:
        return False
    expect_told_or_done(root, operation, outcome, "zu groß")
    expect_works_now(root, operation, outcome)
    return True


def traced_attacks():
    for operation, (before, after) in OPERATIONS.items():
        root = place()
        build(root, before)
        outcome = traced(root, operation)
        expect(not outcome.boxes, f"{operation} without any fault says {outcome.boxes}")
        expect_world(root, [after], f"{operation} without any fault")
        calls = calls_on(root, outcome.log)
        for call in calls:
            what = f"{operation} at {call.name} {call.number} of {call.file}"
            if call.name in CHANGING:
                yield "killed", what, partial(attempt_kill, operation, call)
            for error in REASONS:
                if error == "EDQUOT" and call.name not in STORING:
                    continue
                yield ("failing calls", f"{error} in {what}",
                       partial(attempt_error, operation, call, error))
        for size in {call.result for call in calls if call.name == "write"}:
            for limit in {size // 4, size // 2}:
                yield ("short writes", f"{operation}, at most {limit} bytes",
                       partial(attempt_size_limit, operation, limit))


# ---- Real disks in trouble -----------------------------------------------------------------------

def mount(*arguments):
    subprocess.run(["mount", *arguments], check=True)


def unmount(root):
    subprocess.run(["umount", root], check=True)


def attempt_full_disk(operation, free_pages):
    root = os.path.join(place() + "-disk", "world")
    disk = os.path.dirname(root)
    os.makedirs(disk, exist_ok=True)
    mount("-t", "tmpfs", "-o", "size=512k", "tmpfs", disk)
    try:
        build(root, OPERATIONS[operation][0])
        filler = os.path.join(disk, "filler")
        state = os.statvfs(disk)
        write(filler, b"x" * ((state.f_bavail - free_pages) * state.f_bsize))
        outcome = run(root, operation)
        if outcome.boxes:
            expect_told_or_done(root, operation, outcome, REASONS["ENOSPC"])
        os.remove(filler)
        expect_works_now(root, operation, outcome)
        return True if outcome.boxes else None if free_pages else False
    finally:
        unmount(disk)


def fill_disks():
    """Free pages from none to as many as the operation needs."""
    for operation in OPERATIONS:
        free = 0
        while TALLY.attack("full disk", f"{operation} with {free} free pages",
                           partial(attempt_full_disk, operation, free)):
            free += 1


def attempt_read_only(operation):
    root = place()
    build(root, OPERATIONS[operation][0])
    mount("--bind", root, root)
    try:
        mount("-o", "remount,ro,bind", root)
        outcome = run(root, operation)
        expect(outcome.boxes, "no box")
        expect_told_or_done(root, operation, outcome, REASONS["EROFS"])
    finally:
        unmount(root)
    expect_works_now(root, operation, outcome)
    return True


def disk_attacks():
    if os.geteuid() != 0:
        print("SKIPPED full and read-only disks: mounting needs root")
        return
    fill_disks()
    for operation in OPERATIONS:
        TALLY.attack("read-only disk", operation, partial(attempt_read_only, operation))


# ---- All of it -----------------------------------------------------------------------------------

def report(seconds):
    for line in sorted(TALLY.failures):
        print(line)
    print(f"{'':16}{'injected':>9}{'fired':>9}{'survived':>9}")
    total = [sum(column) for column in zip(*TALLY.counts.values())]
    for kind, counts in [*TALLY.counts.items(), ("all", total)]:
        print(f"{kind:16}" + "".join(f"{number:9}" for number in counts))
    print(f"{seconds:.0f} seconds")
    return 0 if total[0] == total[1] == total[2] and not TALLY.failures else 1


def main():
    began = time.monotonic()
    try:
        with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
            attacks = [pool.submit(TALLY.attack, *attack) for attack in traced_attacks()]
        for attack in attacks:
            attack.result()
        disk_attacks()
    finally:
        shutil.rmtree(BASE, ignore_errors=True)
    return report(time.monotonic() - began)


if __name__ == "__main__":
    sys.exit(main())
