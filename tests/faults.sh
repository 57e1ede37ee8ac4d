#!/bin/sh
# Kills the program's file work at every system call, has every call fail and fills the disk, and looks
# at what is left (see tests/faults/faults.py). Takes about a minute. Its last lines tell how many faults
# were injected, fired and survived; fails unless these numbers are equal. Needs the Debian packages
# strace, python3 and util-linux. As root it also tries real disks in trouble; these mounts are seen by
# nothing but this script.
set -eu
cd "$(dirname "$0")/.."
for tool in strace python3 unshare; do
    command -v "$tool" >/dev/null || { echo "$tool is missing, see the head of $0"; exit 1; }
done

packaging/install-packages packaging/debian-packages
cmake --preset release
cmake --build --preset release --target file_work
private=
[ "$(id -u)" != 0 ] || private="unshare --mount"
exec $private python3 tests/faults/faults.py build/release/tests/file_work
