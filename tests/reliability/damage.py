# SPDX-License-Identifier: MIT
"""Lets the console programs read damaged files of every kind: none crashes, takes five seconds, or
ends without a word on each file. A file that does is kept.
usage: damage.py BUILD WORK KEPT COUNT SEED"""

import itertools
import os
import re
import shutil
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SAMPLES = ROOT / 'samples'
AT_ONCE = 60
LONGEST = 5  # seconds
HOOK = {'LC_ALL': 'C.UTF-8', 'QT_QPA_PLATFORM': 'offscreen', 'ASAN_OPTIONS': 'detect_leaks=0'}
CRASH = re.compile(r'Sanitizer|runtime error|terminate called')


class Damaged(Exception):
    """A file that was not read as it must be, and why."""


class Kind:
    """Damaged files of one kind: a share of all in percent, what they are made from, and the command
    that reads them. Files that belong to a drawing get one of its name beside them."""

    def __init__(self, name, share, originals, suffix, command, codes=(0, 2, 3, 4), alone=False):
        self.name, self.share, self.originals, self.suffix = name, share, originals, suffix
        self.command, self.codes, self.at_once = command, codes, 1 if alone else AT_ONCE

    def make(self, folder, count, seed):
        """The files that are damaged; each stands under the name that the command gets for it."""
        folder.mkdir(parents=True)
        subprocess.run(['perl', ROOT / 'tests/proof/damage.pl', folder, str(count), str(seed),
                        *self.originals], check=True)
        for i in range(1, count + 1):
            (folder / str(i)).rename(folder / f'{i}{self.suffix}')
            if (beside := folder / f'{i}.txt').exists():
                beside.rename(folder / f'{i}{self.suffix}.txt')
        return [folder / f'{i}{self.suffix}' for i in range(1, count + 1)]

    def arguments(self, build, files, home):
        program, *options = self.command
        return [build / 'bin' / program, *(word.replace('HOME', str(home)) for word in options),
                *files]


class AnswersKind(Kind):
    """The drawing of each has a copy under the answers' name."""

    def make(self, folder, count, seed):
        drawings = []
        share = -(-count // len(self.originals))
        for number, original in enumerate(self.originals):
            answers = folder / 'PlotSave' / f'of-{number}'
            wanted = min(share, count - len(drawings))
            for i, damaged in enumerate(Kind('', 0, [original], '.plx', []).make(
                    answers, wanted, seed + number)):
                drawing = folder / f'{number}-{i}.plt'
                drawing.symlink_to(original.with_suffix('.plt'))
                damaged.rename(folder / 'PlotSave' / f'{number}-{i}.plx')
                drawings.append(drawing)
        return drawings


def samples(*patterns):
    return sorted(file for pattern in patterns for file in SAMPLES.glob(pattern))


JOB = [str(SAMPLES / 'bracket.plt'), '--answers', str(SAMPLES / 'bracket.plx')]
CONVERT = ['torvik-convert', '--target', 'maskor', '--force', '--output-dir', 'HOME/out']
PREPARE = ['torvik-prepare', '--force', '--output-dir', 'HOME/out']
KINDS = [
    Kind('programs', 30, sorted(itertools.chain.from_iterable(
        ROOT.glob(f'tests/golden/*/expected.{target}') for target in
        ('iso', 'mxc', 'wincam', 'winnc'))), '', ['torvik-check', '--table'], (0, 5)),
    Kind('HPGL read', 12, samples('*.plt', 'prepare/*.plt'), '.plt', ['torvik-convert', '--show']),
    Kind('HPGL prepared', 12, samples('*.plt', 'prepare/*.plt', 'prepare/*.hpgl'), '.hpgl', PREPARE),
    Kind('SVG', 14, samples('prepare/*.svg'), '.svg', PREPARE),
    Kind('DXF', 14, samples('prepare/*.dxf'), '.dxf', PREPARE),
    AnswersKind('answers', 14, samples('*.plx'), '.plx', CONVERT + ['--tools',
                                                                    str(SAMPLES / 'Maskor.ini')]),
    Kind('tools', 4, samples('*.ini'), '.ini', CONVERT + JOB + ['--tools'], alone=True),
]


def answers_of(drawing):
    return drawing.parent / 'PlotSave' / f'{drawing.stem}.plx'


def run(kind, build, files, home):
    """Why something is wrong, None where all is well; and whether each was surely in time."""
    environment = {**os.environ, **HOOK, 'HOME': str(home), 'TORVIK_HOME': str(home),
                   'XDG_CONFIG_HOME': str(home)}
    arguments = kind.arguments(build, files, home)
    began = time.monotonic()
    try:
        done = subprocess.run(arguments, env=environment, stdin=subprocess.DEVNULL, timeout=120,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    except subprocess.TimeoutExpired:
        return f'no end after 120 s: {arguments[:3]}', False
    in_time = time.monotonic() - began < LONGEST
    said = done.stdout.decode('utf-8', 'replace')
    if done.returncode not in kind.codes or CRASH.search(said):
        return f'exit code {done.returncode}: {said[-3000:]}', in_time
    if kind.at_once == 1:
        return (None if said.strip() else 'not a word'), in_time
    named = set(re.findall(r'[^\s:,]+', said))
    silent = [file for file in files if named.isdisjoint({str(file), str(answers_of(file))})]
    return (f'not a word on {silent[0]}' if silent else None), in_time


def read(kind, build, files, home, kept):
    wrong, in_time = run(kind, build, files, home)
    if wrong is None and in_time:
        return len(files)
    for file in files:
        wrong_alone, in_time = run(kind, build, [file], home)
        if wrong_alone is None and not in_time:
            wrong_alone = f'more than {LONGEST} s'
        if wrong_alone is not None:
            kept = kept.with_suffix(kind.suffix)
            shutil.copy(answers_of(file) if answers_of(file).exists() else file, kept)
            raise Damaged(f'{kind.name}: {kept}: {wrong_alone}')
    if wrong is not None:
        raise Damaged(f'{kind.name}: only together, from {files[0]} on: {wrong}')
    return len(files)


def read_all(kind, build, work, kept, count, seed):
    home = work / kind.name.replace(' ', '-')
    files = kind.make(home, count, seed)
    groups = [files[i:i + kind.at_once] for i in range(0, len(files), kind.at_once)]
    with ThreadPoolExecutor(2) as pool:
        return sum(pool.map(lambda group: read(kind, build, group, home, kept), groups))


def main():
    build, work, kept = (Path(word) for word in sys.argv[1:4])
    count, seed = int(sys.argv[4]), int(sys.argv[5])
    made = {}
    try:
        for kind in KINDS:
            made[kind.name] = read_all(kind, build, work, kept, max(1, count * kind.share // 100),
                                       seed)
    except Damaged as damaged:
        sys.exit(f'Damaged files: {damaged}')
    print(f'Damaged files: {sum(made.values())}, all read to their end ('
          + ', '.join(f'{count} {name}' for name, count in made.items()) + ')')


main()
