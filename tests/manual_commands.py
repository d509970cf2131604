#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails where the manual shows something else than its commands do.

    manual_commands.py [--all] [--page] TOOL SAMPLE_WALK MANUAL

A block of the manual that is marked as console holds commands, each behind "$ ", and under each what
it prints on both streams. All of them are run in their order, in one folder, which holds
sample-walk.c3d and across.c3d, the same walk along Y. A block of Python, R or bash begins with a
comment that is the name of the file it stands in; one of bash must be run by a command. A script whose
language or packages are not installed is passed over and named, with --all it fails. --page writes what
was printed into the manual, and beside it those of its pictures that the scripts made.
"""
import argparse
import difflib
import functools
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile

BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
BLOCK_SIZE = 512


def quarter_turned(trial):
    """the sample walk with its markers, the first eight points, turned by 90 degrees"""
    markers = 8
    points, analog = struct.unpack_from("<hh", trial, 2)
    first, last = struct.unpack_from("<hh", trial, 6)
    start = (struct.unpack_from("<h", trial, 16)[0] - 1) * BLOCK_SIZE
    frame_size = (4 * points + analog) * 4
    turned = bytearray(trial)
    for frame in range(last - first + 1):
        for marker in range(markers):
            place = start + frame * frame_size + marker * 16
            x, y = struct.unpack_from("<ff", trial, place)
            struct.pack_into("<ff", turned, place, -y, x)
    return bytes(turned)


# How each language tries to load a package.
LOADERS = {"python": ("python3", "-c", "import {}"), "r": ("Rscript", "-e", "library({})")}
PACKAGES = {"python": r"^(?:import|from) (\w+)", "r": r"^library\((\w+)\)"}


@functools.cache
def is_installed(language, package):
    program, option, code = LOADERS[language]
    return subprocess.run([program, option, code.format(package)], capture_output=True,
                          check=False).returncode == 0


def lacking(language, code):
    """what is not installed of all that a script needs"""
    program = LOADERS[language][0]
    if not shutil.which(program):
        return [program]
    packages = re.findall(PACKAGES[language], code, re.MULTILINE)
    return [package for package in packages if not is_installed(language, package)]


class Manual:
    def __init__(self, folder, options):
        self.folder = folder
        self.options = options
        self.scripts = {}
        self.status = 0
        self.run_count = 0
        self.faults = []
        self.unused = set()  # the scripts of the shell that no command has run

    def run(self, command):
        self.unused -= set(re.split(r"[\s;|]+", command))
        environment = dict(os.environ, LC_ALL="C.UTF-8", MPLBACKEND="Agg")
        tools = pathlib.Path(self.options.tool).resolve().parent
        environment["PATH"] = f"{tools}:{environment['PATH']}"
        # "$?" is the status of the command before.
        result = subprocess.run(
            ["bash", "-c", f"(exit {self.status})\n{command}"], cwd=self.folder, env=environment,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, check=False)
        self.status = result.returncode
        self.run_count += 1
        return result.stdout.decode("utf-8")

    def is_passed_over(self, command):
        for name, script in self.scripts.items():
            if name not in command.split():
                continue
            missing = lacking(*script)
            if missing and self.options.all:
                self.faults.append(f"{name} needs {', '.join(missing)}")
            elif missing:
                print(f"passed over: {command.rstrip()} (no {', '.join(missing)} here)")
            return bool(missing)
        return False

    def console(self, body):
        """the block as its commands print it"""
        shown = []
        for part in re.split(r"^(?=\$ )", body, flags=re.MULTILINE):
            if not part:
                continue
            text = re.match(r"\$ ((?:[^\n]*\\\n)*[^\n]*\n)", part)
            if not text:
                self.faults.append(f"a console block begins without a command: {part!r}")
                return body
            command, expected = text.group(1), part[text.end():]
            printed = expected if self.is_passed_over(command) else self.run(command)
            if printed != expected:
                lines = difflib.unified_diff(expected.splitlines(), printed.splitlines(),
                                             "the manual", "the command", lineterm="")
                self.faults.append("\n".join([f"$ {command.rstrip()}", *lines]))
            shown.append(f"$ {command}{printed}")
        return "".join(shown)

    def block(self, match):
        language, body = match.groups()
        if language == "console":
            body = self.console(body)
        elif language in LOADERS:
            name = re.match(r"# (\S+)\n", body).group(1)
            self.scripts[name] = (language, body)
            (self.folder / name).write_text(body, encoding="utf-8")
        elif language == "bash":
            name = re.match(r"(?:#!.*\n)?# (\S+)\n", body).group(1)
            (self.folder / name).write_text(body, encoding="utf-8")
            self.unused.add(name)
        else:
            self.faults.append(f"nobody checks a block of {language or 'no language'}")
        return f"```{language}\n{body}```"


def keep_pictures(page, folder, beside):
    """the page's pictures that were made in the folder, written anew"""
    for name in re.findall(r"!\[[^]]*\]\(([^)/]+)\)", page):
        if (folder / name).exists():
            shutil.copyfile(folder / name, beside / name)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--page", action="store_true")
    parser.add_argument("tool")
    parser.add_argument("walk", type=pathlib.Path)
    parser.add_argument("manual", type=pathlib.Path)
    options = parser.parse_args()
    page = options.manual.read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        walk = options.walk.read_bytes()
        (folder / "sample-walk.c3d").write_bytes(walk)
        (folder / "across.c3d").write_bytes(quarter_turned(walk))
        manual = Manual(folder, options)
        written = BLOCK.sub(manual.block, page)
        if options.page:
            keep_pictures(page, folder, options.manual.parent)
    if options.page:
        options.manual.write_text(written, encoding="utf-8")
    manual.faults += [f"no command runs {name}" for name in sorted(manual.unused)]
    if manual.faults:
        sys.exit("\n\n".join(manual.faults))
    if manual.run_count == 0:
        sys.exit("the manual has no command")
    print(f"{manual.run_count} commands do what the manual says")


main()
