# SPDX-License-Identifier: MIT
"""Saves where the place is not as it was: a disk that is full or can only be read, a folder that is
gone, a drawing that was changed or removed since it was opened, and locks of programs that have died,
run, hang, or stand on another machine. The files are old or new, the user is told, nothing takes two
seconds. Where the system lets nobody make a disk, it says so and leaves those cases out.
usage: places.py BUILD WORK [SEED fast|all]      (all of it in any case)"""

import fcntl
import os
import shutil
import socket
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from faults import check
from saves import CONSOLE_SAVES, DESKTOP_SAVES, Fault, Place, files_in

USUAL = 'any 0 once tmp usual'
# Seconds; a sample runs where others may keep the disk busy.
LONGEST = 2.0 if sys.argv[4:] == ['all'] else 6.0
PAGE = 4096
WORKERS = 3  # most of the time is spent waiting for locks
FREE = (0, 1, 2, 3, 5, 9)  # pages that are left on a full disk
OWN_SPACE = ['unshare', '--map-root-user', '--mount']
DRAWING = 'bracket.plt'


def try_save(save, place, what, fresh, before, extra=()):
    """One save; `extra` are files beside the saved ones that are passed over. Whether it was saved."""
    code, told = save.save(place, USUAL, before)
    if save in DESKTOP_SAVES and save.seconds > LONGEST:
        raise Fault(f'{save.name}: {what}: it took {save.seconds:.1f} s')
    left = {name: content for name, content in files_in(place.disk).items() if name not in extra}
    check(f'{save.name}: {what}', '', code, told, save.old, fresh, left, save.durable)
    return code == 0


def fresh_files(save, place):
    code, told = save.save(place, USUAL)
    if code != 0:
        raise Fault(f'{save.name}: not saved: {told}')
    return files_in(place.disk)


def mount(place, *options):
    subprocess.run(['mount', '-t', 'tmpfs', '-o', ','.join(options), 'tmpfs', place.disk], check=True)


def fill(place, pages):
    """Leaves room for so many pages; what fills the disk stands in the file `rest`."""
    with (place.disk / 'rest').open('wb', buffering=0) as rest:
        try:
            while True:
                rest.write(bytes(PAGE))
        except OSError:
            rest.truncate(max(0, rest.tell() // PAGE - pages) * PAGE)


def disks(save, place, fresh):
    """Full ones, and one that can only be read."""
    place.put({})
    mount(place, 'size=256k')
    refused = 1  # at the end
    try:
        for pages in FREE:
            refused += not try_save(save, place, f'a disk with {pages} pages left', fresh,
                                    lambda pages=pages: fill(place, pages), ['rest'])
        remount = ['mount', '-o', 'remount,{}', place.disk]
        if try_save(save, place, 'a disk that can only be read', fresh, lambda: subprocess.run(
                [str(word).format('ro') for word in remount], check=True)):
            raise Fault(f'{save.name}: saved on a disk that can only be read')
        subprocess.run([str(word).format('rw') for word in remount], check=True)
    finally:
        save.end()
        subprocess.run(['umount', '-l', place.disk], check=True)
    return len(FREE) + 1, refused


def folder_gone(save, place):
    """Made again with what an empty one would get, or left alone."""
    save.save(place, USUAL, lambda: place.put({}))
    alone = files_in(place.disk)
    code, told = save.save(place, USUAL, lambda: shutil.rmtree(place.disk))
    left = files_in(place.disk) if place.disk.exists() else {}
    if left != (alone if code == 0 else {}):
        raise Fault(f'{save.name}: the folder is gone ({code}): {sorted(left)}: {told}')
    if code != 0 and not told.strip():
        raise Fault(f'{save.name}: the folder is gone, and the user was told nothing')
    return 1


def drawing_gone(save, place, fresh):
    """What was read is what is written, whatever became of the file."""
    drawing = place.folder / DRAWING
    whole = drawing.read_bytes()
    changes = {'changed': lambda: drawing.write_bytes(b'IN;SP1;PA0,0;PD400,400;PU;'),
               'cut off': lambda: drawing.write_bytes(whole[:100]),
               'removed': drawing.unlink}
    for what, change in changes.items():
        if not try_save(save, place, f'a drawing that was {what}', fresh, change):
            raise Fault(f'{save.name}: not saved, as the drawing was {what}')
        drawing.write_bytes(whole)
    return len(changes)


def dead_process():
    ended = subprocess.Popen(['true'])
    ended.wait()
    return ended.pid


def locks(save, place, fresh, names, sleeper):
    here = socket.gethostname()
    owners = {'of a program that died': f'{dead_process()}\nsleep\n{here}\n',
              'of a program that runs': f'{sleeper.pid}\nsleep\n{here}\n',
              'of another machine': f'{sleeper.pid}\nsleep\nelsewhere\n',
              'that is empty': '', 'without sense': '\0' * 500}
    made = 0
    for name in names:
        lock = place.disk / name
        for what, content in owners.items():
            saved = try_save(save, place, f'a lock {what}', fresh, lambda: lock.write_text(content),
                             [name])
            if not saved and what in ('of a program that died', 'that is empty'):
                raise Fault(f'{save.name}: held up by {name} {what}')
            made += 1
        try_save(save, place, 'a lock that nobody can read', fresh, lock.mkdir)
        made += 1
    for turn in sorted((place.folder / 'run').glob('torvik-settings-*')):
        with turn.open('w') as held:
            fcntl.flock(held, fcntl.LOCK_EX)
            try_save(save, place, f'{turn.suffix} of a program that hangs', fresh, lambda: None)
        made += 1
    return made


LOCKS = {'tools': ['Baltrum/Maskor.ini.lock', 'Baltrum/Maskor.ini.batch.lock'],
         'settings': ['Torvik/Torvik.ini.lock']}


def run_save(save, build, work, may_mount, sleeper):
    place = Place(work / save.word, build)
    fresh = fresh_files(save, place)
    made = {'disks': 0, 'saves refused there': 0, 'folders gone': folder_gone(save, place)}
    if save.word in ('program', 'answers') and save in DESKTOP_SAVES:
        made['drawings changed or gone'] = drawing_gone(save, place, fresh)
    if save in DESKTOP_SAVES and save.word in LOCKS:
        made['locks'] = locks(save, place, fresh, LOCKS[save.word], sleeper)
    save.end()
    if may_mount:
        made['disks'], made['saves refused there'] = disks(save, place, fresh)
    return made


def main():
    build, work = Path(sys.argv[1]), Path(sys.argv[2])
    if os.environ.get('TORVIK_OWN_SPACE') is None:
        may_mount = subprocess.run(
            [*OWN_SPACE, 'mount', '-t', 'tmpfs', 'tmpfs', '/mnt'], capture_output=True,
            check=False).returncode == 0
        again = [sys.executable, *sys.argv]
        os.environ['TORVIK_OWN_SPACE'] = '1' if may_mount else '0'
        os.execvp((OWN_SPACE + again)[0] if may_mount else again[0],
                  OWN_SPACE + again if may_mount else again)
    may_mount = os.environ['TORVIK_OWN_SPACE'] == '1'
    sleeper = subprocess.Popen(['sleep', '3600'])
    total = {}
    try:
        with ThreadPoolExecutor(WORKERS) as pool:
            for made in pool.map(lambda save: run_save(save, build, work, may_mount, sleeper),
                                 DESKTOP_SAVES + CONSOLE_SAVES):
                for what, count in made.items():
                    total[what] = total.get(what, 0) + count
    except Fault as fault:
        sys.exit(f'Places: {fault}')
    finally:
        sleeper.kill()
    print('Places: ' + ', '.join(f'{count} {what}' for what, count in total.items())
          + ('' if may_mount else ' (no disk may be made here)'))


main()
