#!/usr/bin/env bash
# Builds the Debian package from a copy of the sources, so that what dpkg-buildpackage
# leaves stays out of the work tree:
#   build-package.sh <folder>   ->  <folder>/tavok_<version>_<arch>.deb, the list's
#                                   libtavok-moveslist1 and -dev packages, the -dbgsym
#                                   packages and the .changes beside them
set -euo pipefail
out=${1:?usage: build-package.sh <folder>}
root=$(cd "$(dirname "$0")/.." && pwd)
mkdir -p "$out"
out=$(cd "$out" && pwd)
source="$out/package-source"
rm -rf "$source"
rm -f "$out"/tavok_* "$out"/tavok-dbgsym_* "$out"/libtavok-moveslist*
mkdir -p "$source"

# The project's files, committed or not, without build folders or anything ignored.
cd "$root"
if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
  git ls-files -z --cached --others --exclude-standard |
    while IFS= read -r -d '' file; do
      [[ -e $file ]] && printf '%s\0' "$file"
    done | tar --null -T - -cf - | tar -xf - -C "$source"
else
  tar --exclude='./build*' --exclude='./obj-*' -cf - . | tar -xf - -C "$source"
fi

cd "$source"
DEB_BUILD_OPTIONS="parallel=${JOBS:-2} ${DEB_BUILD_OPTIONS:-}" dpkg-buildpackage -us -uc -b
ls "$out"/tavok_*.deb
