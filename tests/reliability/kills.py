# SPDX-License-Identifier: MIT
"""Kills the console programs at random moments of their saves: the files are old or new, what is left
beside them has a telling name. Then copies change the tools and
settings of one file at the same time: no change is lost.
usage: kills.py BUILD WORK SEED fast|all"""

import random
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from saves import CONSOLE_SAVES, Fault, Place, files_in

KILLS = {'fast': 100, 'all': 2000}
COPIES = 8
CHANGES = {'fast': 15, 'all': 1000}
KEPT = 10  # tools of each copy that are there at the end
LEFT_OVER = '.torvik-'


def kill_one(save, place, order):
    """Whether the program was killed; raises Fault where a file is half written."""
    code, told = save.save(place, order)
    if code >= 0:
        return False
    if code != -9:
        raise Fault(f'{save.name}: {order}: it crashed ({code}): {told}')
    left = files_in(place.disk)
    for name, content in left.items():
        if not name.startswith(LEFT_OVER) and content not in (save.old.get(name), save.fresh[name]):
            raise Fault(f'{save.name}: {order}: half written: {name}')
    if not save.old.keys() <= left.keys():
        raise Fault(f'{save.name}: {order}: a file is gone: {sorted(left)}')
    return True


def run_kills(build, work, seed, count):
    places = [Place(work / f'kills-{i}', build) for i in range(2)]
    moments = []
    for save in CONSOLE_SAVES:
        code, told = save.save(places[0], 'any 0 once tmp usual')
        if code != 0:
            raise Fault(f'{save.name}: not saved without a kill: {told}')
        save.fresh = files_in(places[0].disk)
        for disk in ('tmp', 'plain'):
            save.save(places[0], f'any 0 once {disk} usual')
            moments += [(save, f'any {k} once {disk} kill')
                        for k in range(1, len(places[0].calls()) + 1)]
    chance = random.Random(seed)
    chosen = [chance.choice(moments) for _ in range(count)]

    def work_on(i):
        return sum(kill_one(save, places[i], order) for save, order in chosen[i::2])

    with ThreadPoolExecutor(2) as pool:
        made = sum(pool.map(work_on, range(2)))
    if made < count * 0.9:
        raise Fault(f'only {made} of {count} kills hit a program')
    return made


def run_changes(build, work, changes):
    place = Place(work / 'changes', build)
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
        made = run_kills(build, work, seed, KILLS[how])
        print(f'Kills: {made}, all files old or new', flush=True)
        longest = run_changes(build, work, CHANGES[how])
    except Fault as fault:
        sys.exit(f'Kills: {fault}')
    print(f'Changes at the same time: {COPIES} copies, {CHANGES[how]} each, none lost, '
          f'the longest took {longest} ms')


main()
