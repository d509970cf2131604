#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Packs a folder, under its own name, into a zip that is the same byte for byte whenever its files are.

    make_zip.py FOLDER FILE.zip

Every file has the time SOURCE_DATE_EPOCH, in seconds since 1970.
"""

import os
import sys
import time
import zipfile
from pathlib import Path


def pack(folder: Path, archive: Path) -> None:
    moment = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        for file in sorted(path for path in folder.rglob("*") if path.is_file()):
            entry = zipfile.ZipInfo(file.relative_to(folder.parent).as_posix(), moment)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 0  # as made on Windows: a file has no further rights
            packed.writestr(entry, file.read_bytes())


if __name__ == "__main__":
    pack(Path(sys.argv[1]), Path(sys.argv[2]))
