# SPDX-License-Identifier: MIT
"""Lets each call of each save fail, in the real programs: the files are old or new, nothing is left
beside them, and the user is told.
usage: faults.py BUILD WORK SEED fast|all"""

import random
import sys
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from saves import CONSOLE_SAVES, DESKTOP_SAVES, WORKERS, Fault, Place, files_in

CALLS = ('open', 'write', 'sync', 'rename', 'link', 'close', 'stat')
ERRORS = ('EIO', 'ENOSPC', 'EACCES', 'EROFS', 'EDQUOT', 'EBUSY', 'EINTR')
SURVIVED = ('EINTR', 'half')  # what a save may get over
MOST = {'fast': 24, 'all': 330}  # points of a save
LEAST = {'fast': 24, 'all': 300}


def points(calls):
    """Every fault for calls that were seen, by their disk: order without its folder, call."""
    found = []
    for disk, lines in calls.items():
        for call, count in Counter(line.split()[0] for line in lines).items():
            if call not in CALLS:
                continue
            for k in range(1, count + 1):
                for often in ('once', 'ever'):
                    for error in ERRORS + (('half',) if call == 'write' else ()):
                        found.append((f'{call} {k} {often} {disk} {error}', error))
    return found


def check(order, error, ended, told, old, fresh, left, durable):
    wrong = {name: content[:80] for name, content in left.items()
             if content not in (old.get(name), fresh.get(name))}
    if wrong:
        raise Fault(f'{order}: half written, or left over: {wrong}')
    is_new, is_old = left == fresh, left == old
    if not is_new and not is_old:
        raise Fault(f'{order}: some files are old and some new: {sorted(left)}')
    if ended < 0 or ended > 5 or 'Sanitizer' in told or 'runtime error' in told:
        raise Fault(f'{order}: the program crashed ({ended}): {told}')
    if ended == 0 and not is_new:
        raise Fault(f'{order}: the exit code is 0, but the files are the old ones')
    if ended != 0 and is_new and not durable:
        raise Fault(f'{order}: the exit code is {ended}, but the files are the new ones')
    if ended != 0 and not told.strip():
        raise Fault(f'{order}: the user was told nothing')
    if ended == 0 and durable and order.startswith('sync') and error not in SURVIVED:
        raise Fault(f'{order}: the failure was passed over')


def chosen(found, seed, most):
    return random.Random(seed).sample(found, min(most, len(found)))


def saved_without_fault(save, place):
    """The files after it, and its calls on each kind of disk."""
    calls, fresh = {}, {}
    for disk in ('tmp', 'plain'):
        code, told = save.save(place, f'any 0 once {disk} usual')
        fresh = files_in(place.disk)
        calls[disk] = place.calls()
        if code != 0 or fresh.keys() != save.old.keys() or fresh == save.old:
            raise Fault(f'{save.name}: not saved without a fault: {told}')
    return fresh, calls


def run_save(save, build, work, seed, how):
    places = [Place(work / f'{save.name.replace(" ", "-")}-{i}', build) for i in range(WORKERS)]
    fresh, calls = zip(*(saved_without_fault(save, place) for place in places))
    calls = calls[0]
    if save.durable:
        folder = str(places[0].disk)
        if f'sync {folder}' not in calls['tmp']:
            raise Fault(f'{save.name}: the folder was not synced')
        if not any(line.startswith(f'sync {folder}/') for line in calls['tmp']):
            raise Fault(f'{save.name}: the file was not synced')
    found = chosen(points(calls), seed, MOST[how])

    def work_on(i):
        made = 0
        for order, error in found[i::WORKERS]:
            code, told = save.save(places[i], order)
            if any(line.startswith('!') for line in places[i].calls()):
                check(f'{save.name}: {order}', error, code, told, save.old, fresh[i],
                      files_in(places[i].disk), save.durable)
                made += 1
        return made

    with ThreadPoolExecutor(WORKERS) as pool:
        made = sum(pool.map(work_on, range(WORKERS)))
    save.end()
    if made < LEAST[how]:
        raise Fault(f'{save.name}: only {made} faults were made')
    return made


def main():
    build, work, seed, how = Path(sys.argv[1]), Path(sys.argv[2]), int(sys.argv[3]), sys.argv[4]
    made = {}
    try:
        for save in DESKTOP_SAVES + CONSOLE_SAVES:
            made[save.name] = run_save(save, build, work, seed, how)
    except Fault as fault:
        sys.exit(f'Faults: {fault}')
    print(f'Faults: {sum(made.values())} in {len(made)} saves, all files old or new ('
          + ', '.join(f'{name} {count}' for name, count in made.items()) + ')')


if __name__ == '__main__':
    main()
