#!/usr/bin/env bash
# Builds the Debian package as a user does (make package) and checks what it holds:
# lintian finds nothing to say but information; the game, unpacked into a scratch root
# (not installed), answers --help and --version without a display, says in one line
# that there is no display, has its files where the desktop looks for them, and its
# desktop entry and AppStream data pass their checkers with no remark at all.
#   check-package.sh [--no-build]   --no-build checks the package already in $BUILD
set -euo pipefail
cd "$(dirname "$0")/.."
build=${BUILD:-build}

fail() {
  echo "check-package: $*" >&2
  exit 1
}

[[ ${1:-} == --no-build ]] || make package BUILD="$build"
shopt -s nullglob
debs=("$build"/tavok_*.deb)
changes=("$build"/tavok_*.changes)
dbgsym=("$build"/tavok-dbgsym_*.deb)
[[ ${#debs[@]} -eq 1 && ${#changes[@]} -eq 1 ]] || fail "expected one tavok_*.deb and one .changes in $build"
[[ ${#dbgsym[@]} -eq 1 ]] || fail "no debug symbols package beside the game's"
deb=${debs[0]}
libs=("$build"/libtavok-moveslist1_*.deb)
devs=("$build"/libtavok-moveslist-dev_*.deb)
[[ ${#libs[@]} -eq 1 && ${#devs[@]} -eq 1 ]] || fail "expected the list's library and -dev packages"

echo "== lintian $(basename "${changes[0]}")"
lintian --fail-on error,warning "${changes[0]}"

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
dpkg -x "$deb" "$root"
dpkg -x "${libs[0]}" "$root"
dpkg -x "${devs[0]}" "$root"
game="$root/usr/games/tavok"
# Unpacked, not installed: the game finds the list's library in the scratch root.
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
export LD_LIBRARY_PATH="$root/usr/lib/$multiarch"
dpkg-deb -f "$deb" Depends | grep -q "libtavok-moveslist1" || fail "the game does not depend on the list's library"

echo "== the files"
for file in usr/games/tavok usr/share/games/tavok/tavok.htm \
  usr/share/games/tavok/help/ring.png usr/share/games/tavok/help/ring@2x.png \
  usr/share/man/man6/tavok.6.gz usr/share/doc/tavok/copyright \
  usr/share/applications/org.tavok.Tavok.desktop \
  usr/share/metainfo/org.tavok.tavok.metainfo.xml \
  usr/share/icons/hicolor/scalable/apps/org.tavok.Tavok.svg; do
  [[ -f "$root/$file" ]] || fail "the package lacks /$file"
done
for size in 16 24 32 48 64 128 256 512; do
  icon="$root/usr/share/icons/hicolor/${size}x${size}/apps/org.tavok.Tavok.png"
  [[ -f $icon ]] || fail "no icon of $size pixels"
  file "$icon" | grep -q "$size x $size" || fail "the $size-pixel icon is $(file -b "$icon")"
done
for file in usr/include/tavok/moveslist/usercontrol1.h \
  "usr/lib/$multiarch/cmake/TavokMovesList/TavokMovesListConfig.cmake" \
  "usr/lib/$multiarch/libtavok-moveslist.so.1" \
  "usr/lib/$multiarch/qt6/plugins/designer/libtavok-moveslist-designer.so"; do
  [[ -e "$root/$file" ]] || fail "the list's packages lack /$file"
done
for binary in "$game" "$root/usr/lib/$multiarch/libtavok-moveslist.so.1"; do
  if readelf -S "$binary" | grep -q '\.debug_info'; then
    fail "$binary is not stripped"
  fi
  if readelf -d "$binary" | grep -q -E 'RPATH|RUNPATH'; then
    fail "$binary carries a search path for libraries"
  fi
done

echo "== the command line"
version=$(dpkg-deb -f "$deb" Version)
out=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$game" --version)
[[ $out == "tavok $version" ]] || fail "--version says '$out', the package is $version"
env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$game" --help | grep -q -- '--version' ||
  fail "--help does not list --version"
status=0
err=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$game" 2>&1) || status=$?
[[ $status -eq 3 && $err == "tavok: no display found"* ]] ||
  fail "without a display: status $status, '$err'"

echo "== a damaged score record"
mkdir -p "$root/config/Tavok"
printf '[Score]\nTavok\\won=lots\n' >"$root/config/Tavok/Tavok.conf"
status=0
XDG_CONFIG_HOME="$root/config" QT_QPA_PLATFORM=offscreen timeout 5 "$game" 2>"$root/stderr" || status=$?
[[ $status -eq 124 ]] || fail "with a damaged record the game ended with status $status: $(cat "$root/stderr")"
grep -q "score record .* damaged" "$root/stderr" || fail "a damaged record is not told: $(cat "$root/stderr")"

echo "== desktop entry and AppStream data"
remarks=$(desktop-file-validate "$root/usr/share/applications/org.tavok.Tavok.desktop" 2>&1) || true
[[ -z $remarks ]] || fail "desktop-file-validate: $remarks"
remarks=$(appstreamcli validate --pedantic --no-net \
  "$root/usr/share/metainfo/org.tavok.tavok.metainfo.xml" 2>&1) || fail "$remarks"
if grep -q '^[EWIP]: ' <<<"$remarks"; then fail "appstreamcli: $remarks"; fi
remarks=$(appstreamcli validate-tree --pedantic --no-net "$root" 2>&1) || fail "$remarks"
if grep -q '^[EWIP]: ' <<<"$remarks"; then fail "appstreamcli validate-tree: $remarks"; fi

echo "== reuse lint"
reuse lint >/dev/null || reuse lint

echo "check-package: $(basename "$deb") is sound"
