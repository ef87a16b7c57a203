#!/usr/bin/env bash
# Runs a command with its temporary files on a small file system of its own (a tmpfs in a
# mount namespace), so that a test can fill it and see writes fail as on a full disk.
#   on_small_disk.sh COMMAND [ARGS...]   without namespaces, the command runs as it is
set -u
disk=$(mktemp -d)
trap 'rmdir "$disk"' EXIT
# Root keeps its powers (a test makes a device); others map themselves to root in a user namespace.
ns=-rm
[ "$(id -u)" = 0 ] && ns=-m
if unshare $ns true 2>/dev/null; then
    unshare $ns bash -c 'mount -t tmpfs -o size=32m tmpfs "$0" &&
        TMPDIR="$0" FROSTEL_SMALL_DISK="$0" "${@}"' "$disk" "$@"
else
    echo "no mount namespace: a full disk is imitated by a file size limit" >&2
    "$@"
fi
