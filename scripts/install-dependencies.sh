#!/bin/sh
# Installs the Debian packages given as arguments that are missing, as root or with sudo.
set -eu

missing=
for package in "$@"; do
  dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
    missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || {
    echo "These packages are missing; install them as root:$missing" >&2
    exit 1
  }
  as_root=sudo
fi
echo "Installing$missing"
$as_root apt-get update -qq
# shellcheck disable=SC2086 # a list of package names
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
  $missing >/dev/null
