# SPDX-License-Identifier: MIT
"""Kills the programs at random moments of their saves: the files are old or new, what is left beside
them has a telling name, and a save of a window that comes after it is as good as any. Then copies
change the tools and settings of one file at the same time: no change is lost.
usage: kills.py BUILD WORK SEED fast|all"""

import random
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from saves import CONSOLE_SAVES, DESKTOP_SAVES, WORKERS, Fault, Place, files_in

KILLS = {'fast': (60, 20), 'all': (2000, 300)}  # of console programs, of the desktop program
COPIES = 8
CHANGES = {'fast': 15, 'all': 1000}
LONGEST = 2000  # ms
MEMORY = Path('/dev/shm')
KEPT = 10  # tools of each copy that are there at the end
LEFT_OVER = re.compile(r'(.*/)?\.torvik-.*|.*\.ini(\.[A-Za-z]{6}|\.lock|\.batch\.lock|\.lock\.rmlock)')


def kill_one(save, place, order, fresh):
    """Whether the program was killed; raises Fault where a file is half written."""
    code, told = save.save(place, order)
    if code >= 0:
        return False
    if code != -9:
        raise Fault(f'{save.name}: {order}: it crashed ({code}): {told}')
    left = files_in(place.disk)
    for name, content in left.items():
        if not LEFT_OVER.fullmatch(name) and content not in (save.old.get(name), fresh.get(name)):
            raise Fault(f'{save.name}: {order}: half written, or left over: {name}')
    if not save.old.keys() <= left.keys():
        raise Fault(f'{save.name}: {order}: a file is gone: {sorted(left)}')
    if save in DESKTOP_SAVES:
        code, told = save.save(place, 'any 0 once tmp usual', lambda: place.put(left))
        again = files_in(place.disk)
        if code != 0 or any(again[name] != content for name, content in fresh.items()):
            raise Fault(f'{save.name}: {order}: not saved after it ({code}): {told}')
    return True


def run_kills(saves, build, work, seed, count):
    places = [[Place(work / f'kills-{save.word}-{i}', build) for save in saves] for i in range(WORKERS)]
    fresh, moments = {}, []
    for number, save in enumerate(saves):
        for i in range(WORKERS):
            place = places[i][number]
            for disk in ('tmp', 'plain'):
                code, told = save.save(place, f'any 0 once {disk} usual')
                if code != 0:
                    raise Fault(f'{save.name}: not saved without a kill: {told}')
                moments += [(number, f'any {k} once {disk} kill')
                            for k in range(1, len(place.calls()) + 1)]
            fresh[i, number] = files_in(place.disk)
    chance = random.Random(seed)
    chosen = [chance.choice(moments) for _ in range(count)]

    def work_on(i):
        return sum(kill_one(saves[number], places[i][number], order, fresh[i, number])
                   for number, order in chosen[i::WORKERS])

    with ThreadPoolExecutor(WORKERS) as pool:
        made = sum(pool.map(work_on, range(WORKERS)))
    for save in saves:
        save.end()
    if made < count * 0.9:
        raise Fault(f'only {made} of {count} kills hit a program')
    return made


def run_changes(build, work, changes):
    # In memory, where there is a disk of it: copies wait for each other, not for the disk.
    with tempfile.TemporaryDirectory(dir=MEMORY if MEMORY.is_dir() else work) as folder:
        return change_all(Place(Path(folder) / 'changes', build), build, changes)


def change_all(place, build, changes):
    file = place.disk / 'Maskor.ini'
    file.write_text('[Maskor]\n')
    copies = [subprocess.Popen([build / 'tests/reliability/tool_changes', file, str(copy),
                                str(changes)], env=place.environment, text=True,
                               stdout=subprocess.PIPE, stderr=subprocess.PIPE)
              for copy in range(1, COPIES + 1)]
    longest = 0
    for copy in copies:
        out, told = copy.communicate(timeout=1800)
        if copy.returncode != 0:
            raise Fault(f'a copy gave up ({copy.returncode}): {told[-1000:]}')
        longest = max(longest, int(out))
    if longest > LONGEST:
        raise Fault(f'a copy waited {longest} ms for the others')
    text = file.read_text(errors='replace')
    for copy in range(1, COPIES + 1):
        if f'Copy{copy}={changes - 1}' not in text:
            raise Fault(f'the last setting of copy {copy} is lost: {text}')
        for i in range(changes - KEPT, changes):
            if f'={copy * 2000 + i}|' not in text and f'="{copy * 2000 + i}|' not in text:
                raise Fault(f'tool {i} of copy {copy} is lost: {text}')
    if left := sorted(files_in(place.disk).keys() - {'Maskor.ini'}):
        raise Fault(f'left over beside the tools: {left}')
    return longest


def main():
    build, work, seed, how = Path(sys.argv[1]), Path(sys.argv[2]), int(sys.argv[3]), sys.argv[4]
    try:
        made = [run_kills(saves, build, work, seed, count)
                for saves, count in zip((CONSOLE_SAVES, DESKTOP_SAVES), KILLS[how])]
        print(f'Kills: {made[0]} of console programs, {made[1]} of the desktop program, all files '
              'old or new', flush=True)
        longest = run_changes(build, work, CHANGES[how])
    except Fault as fault:
        sys.exit(f'Kills: {fault}')
    print(f'Changes at the same time: {COPIES} copies, {CHANGES[how]} each, none lost, '
          f'the longest took {longest} ms')


main()
