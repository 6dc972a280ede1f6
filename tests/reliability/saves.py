# SPDX-License-Identifier: MIT
"""The saves of the programs, each in folders of its own, and what counts as whole."""

import os
import re
import select
import shutil
import subprocess
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SAMPLES = ROOT / 'samples'
WORKERS = 2 * len(os.sched_getaffinity(0))  # a save waits for the disk, too
HOOK = {'ASAN_OPTIONS': 'verify_asan_link_order=0:detect_leaks=0', 'QT_QPA_PLATFORM': 'offscreen',
        'LC_ALL': 'C.UTF-8', 'QT_HASH_SEED': '0'}  # the same fonts in the same order in a PDF


class Fault(Exception):
    """Something is not as it must be."""


def plain(name, content):
    """A file's bytes without the times in it."""
    if name.endswith('.pdf'):
        content = re.sub(rb'(?s)(?<=startxref\n).*', b'', content)
        content = re.sub(rb'/(Creation|Mod)Date \(.*?\)|/ID \[.*?\]', b'', content)
        content = re.sub(rb'<xmp:(Create|Modify|Metadata)Date>.*?<|uuid:[-0-9a-f]+', b'', content)
    return content


def files_in(folder):
    return {str(path.relative_to(folder)): plain(path.name, path.read_bytes())
            for path in sorted(folder.rglob('*')) if path.is_file() or path.is_symlink()}


class Place:
    """Folders for one worker: the user's home, and the disk that the faults are on."""

    def __init__(self, folder, build):
        self.folder, self.build = Path(folder), build
        self.home, self.disk = self.folder / 'home', self.folder / 'disk'
        self.log = self.folder / 'calls'
        self.environment = {**os.environ, **HOOK, 'HOME': str(self.home), 'TMPDIR': str(self.folder),
                            'XDG_CONFIG_HOME': str(self.folder / 'config'),
                            'XDG_DATA_HOME': str(self.home), 'XDG_CACHE_HOME': str(self.home),
                            'XDG_RUNTIME_DIR': str(self.folder / 'run'),
                            'TORVIK_HOME': str(self.home)}
        self.clear()

    def clear(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        for folder in (self.home, self.disk, self.folder / 'config' / 'Baltrum'):
            folder.mkdir(parents=True)
        (self.folder / 'run').mkdir(mode=0o700)

    def put(self, files):
        self.disk.mkdir(exist_ok=True)
        for path in self.disk.iterdir():
            if path.is_dir():
                shutil.rmtree(path)
            else:
                path.unlink()
        for name, content in files.items():
            (self.disk / name).parent.mkdir(parents=True, exist_ok=True)
            (self.disk / name).write_bytes(content)

    def with_faults(self):
        shim = self.build / 'tests/faults/libfault_shim.so'
        return {**self.environment, 'LD_PRELOAD': str(shim), 'TORVIK_FAULT_LOG': str(self.log)}

    def calls(self):
        return self.log.read_text().splitlines() if self.log.exists() else []

    def run(self, arguments, environment=None, seconds=20):
        """Exit code, standard output, standard error; raises Fault for a hang."""
        try:
            done = subprocess.run(arguments, env=environment or self.environment,
                                  stdin=subprocess.DEVNULL, capture_output=True, timeout=seconds,
                                  check=False)
        except subprocess.TimeoutExpired:
            raise Fault(f'no end after {seconds} s: {arguments}') from None
        return done.returncode, done.stdout.decode(), done.stderr.decode('utf-8', 'replace')


class ConsoleSave:
    """A save of a console program: its arguments, and the files that stand there before."""

    def __init__(self, name, program, arguments, old, durable=False):
        self.name, self.program, self.arguments = name, program, arguments
        self.word = re.sub('[^a-z]+', '-', name)
        self.old = {file: plain(file, content) for file, content in old.items()}
        self.durable = durable

    def command(self, place):
        return [str(place.build / 'bin' / self.program)] + [
            argument.replace('DISK', str(place.disk)) for argument in self.arguments]

    def save(self, place, order, before=lambda: None):
        """Exit code and what was told; `before` is done when the old files are there."""
        place.put(self.old)
        before()
        place.log.unlink(missing_ok=True)
        environment = {**place.with_faults(), 'TORVIK_FAULT': f'{order} {place.disk}'}
        code, _, told = place.run(self.command(place), environment)
        return code, told

    def end(self):
        pass


class DesktopSave:
    """A save in the windows of the desktop program: a process for each place does one after the
    other. The variables name the folders that are on the disk."""

    durable = False

    def __init__(self, name, save, variables, old):
        self.name, self.word, self.variables, self.old = name, save, variables, old
        self.running = {}
        self.seconds = 0  # that the last save took

    def process(self, place):
        running = self.running.get(place)
        if running is None or running.poll() is not None:
            place.put(self.old)
            disk = {name: str(place.disk) for name in self.variables}
            running = self.running[place] = subprocess.Popen(
                [place.build / 'tests/reliability/desktop_saves', self.word, SAMPLES, place.folder],
                env={**place.with_faults(), **disk}, text=True, bufsize=1, stdin=subprocess.PIPE,
                stdout=subprocess.PIPE, stderr=(place.folder / 'said').open('w'))
        return running

    def ask(self, place, line, seconds=20):
        """The answer; empty where the process has ended."""
        running = self.process(place)
        running.stdin.write(line + '\n')
        if not select.select([running.stdout], [], [], seconds)[0]:
            running.kill()
            raise Fault(f'{self.name}: {line}: no end after {seconds} s')
        return running.stdout.readline()

    def prepare(self, place):
        if self.ask(place, 'prepare') != 'ready\n':
            raise Fault(f'{self.name}: not prepared: ' + (place.folder / 'said').read_text())

    def save(self, place, order, before=lambda: None):
        """0 where the user takes it for saved, else 1 (the exit code of a process that ended), and
        what was told; `before` is done when all is ready and the old files are there."""
        self.prepare(place)
        place.put(self.old)
        before()
        place.log.unlink(missing_ok=True)
        began = time.monotonic()
        answer = self.ask(place, f'{order} {place.disk}')
        self.seconds = time.monotonic() - began
        if not answer:
            code = self.running.pop(place).wait()
            return code, (place.folder / 'said').read_text()
        return int(answer[0]), answer[1:]

    def end(self):
        for running in self.running.values():
            running.stdin.close()
            running.wait(20)
        self.running.clear()


def sample(name):
    return str(SAMPLES / name)


JOB = [sample('bracket.plt'), '--answers', sample('bracket.plx'), '--tools', sample('Maskor.ini')]
CONVERT = JOB + ['--target', 'winnc', '--number', '1', '--output-dir', 'DISK', '--force', '--quiet']
PREPARE = [sample('prepare/badge.hpgl'), '--output', 'DISK/badge.plt', '--quiet']
PROGRAM = {'oprg1': b'old', 'oprg1.txt': b'old text'}

TOOLS = (SAMPLES / 'Maskor.ini').read_bytes().replace(
    b'ToolCount=8\n', b'ToolCount=9\nTool09=9|Drill|9.000|0.000\n')
ANSWERS = (SAMPLES / 'bracket.plx').read_bytes()
DESKTOP_SAVES = [
    DesktopSave('answers', 'answers', ['TORVIK_HOME'],
                {'PlotSave/bracket.plx': ANSWERS.replace(b'50,5,2,3,1', b'40,5,2,3,1')}),
    DesktopSave('unfinished answers', 'unfinished', ['TORVIK_HOME'],
                {'PlotSave/bracket.plx': ANSWERS, 'PlotSave/bracket.plx.unfinished': b'old'}),
    DesktopSave('tools', 'tools', ['XDG_CONFIG_HOME'], {'Baltrum/Maskor.ini': TOOLS}),
    DesktopSave('own settings', 'settings', ['XDG_CONFIG_HOME'],
                {'Torvik/Torvik.ini': b'[General]\nLanguage=en\nOutputTarget=2\n'}),
    DesktopSave('program from the window', 'program', [], PROGRAM),
]

CONSOLE_SAVES = [
    ConsoleSave('program', 'torvik-convert', CONVERT, PROGRAM),
    ConsoleSave('program, --sync', 'torvik-convert', CONVERT + ['--sync'], PROGRAM, True),
    ConsoleSave('prepared drawing', 'torvik-prepare', PREPARE, {'badge.plt': b'old'}),
    ConsoleSave('prepared drawing, --sync', 'torvik-prepare', PREPARE + ['--sync'],
                {'badge.plt': b'old'}, True),
    ConsoleSave('job sheet', 'torvik', ['--sheet', 'DISK/bracket.pdf'] + JOB,
                {'bracket.pdf': b'%PDF-1.4 old'}),
]
