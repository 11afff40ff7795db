#!/usr/bin/env bash
# Installs the Debian packages a build needs, and only those that are missing.
#   install-deps.sh play      what building and playing the game needs
#   install-deps.sh package   that, and what building the Debian package needs
#   install-deps.sh test      all that, and what the tests, fuzzers, benchmarks and
#                             checks (of the package too) need
set -euo pipefail

play=(
  cmake ninja-build g++ make pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-qpa-plugins libgl-dev
  fonts-liberation2
)
package=(
  build-essential dpkg-dev debhelper
  qt6-tools-dev libqt6opengl6-dev
)
test=(
  libgtest-dev libgmock-dev libbenchmark-dev
  fonts-dejavu-core fonts-liberation xvfb xauth
  dbus-daemon at-spi2-core python3-pyatspi
  appstream desktop-file-utils lintian reuse
  clang libclang-rt-14-dev
)

case "${1:-test}" in
  play) packages=("${play[@]}") ;;
  package) packages=("${play[@]}" "${package[@]}") ;;
  test) packages=("${play[@]}" "${package[@]}" "${test[@]}") ;;
  *) echo "usage: $0 play|package|test" >&2; exit 2 ;;
esac

missing=()
for p in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
  [[ "$status" == "install ok installed" ]] || missing+=("$p")
done

[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[[ $(id -u) -eq 0 ]] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
