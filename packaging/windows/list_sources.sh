#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Prints where the sources are of all that is part of the programs for Windows:
#   list_sources.sh PACKAGE...
# PACKAGE is a package of this system whose contents are part of them; those of the toolkit are the
# ones that it is built from.
set -euo pipefail
toolkit=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../cmake/mingw/toolkit" && pwd)

cat <<'END'
Where the sources of Vantrel for Windows are

Vantrel itself: who gave you the program gives you its complete source on request, with the
scripts that build and pack it. It is under the GNU General Public License, version 3 or later.

The programs hold the libraries of these source packages of Debian, with these versions and SHA-256
sums. Debian's archive has them, and Debian's snapshot service those that have left the archive:

END
while read -r sum file; do
  [[ $file != *.dsc ]] || sed 's/\(.*\)_\(.*\)\.dsc$/  \1 \2/' <<<"$file"
  printf '    %s  %s\n' "$sum" "$file"
done <"$toolkit/sources.sha256"
cat <<'END'

These changes were made to qt6-base; each stands beside this file and says what it is for:

END
(cd "$toolkit" && printf '  %s\n' *.patch)
cat <<'END'

From these source packages of Debian, had from the same places, come the runtime of the compiler, the
fonts and smaller libraries, unchanged:

END
{
  dpkg-query -W -f '  ${source:Package} ${source:Version}\n' "$@"
  dpkg-query -W -f '${Built-Using}\n' "$@" | tr , '\n' | sed -n 's/^ *\(.*\) (= \(.*\))$/  \1 \2/p'
} | sort -u
