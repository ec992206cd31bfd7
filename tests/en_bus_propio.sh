#!/usr/bin/env bash
# Runs a test program in a home and on a session bus of its own, so that no test ever touches the
# user's files, settings or desktop.
set -eu
casa=$(mktemp -d "${TMPDIR:-/tmp}/ovanta-pruebas.XXXXXX")
trap 'chmod -R u+rwX "$casa" 2>/dev/null || true; rm -rf "$casa"' EXIT
mkdir -p "$casa/tmp" "$casa/run"
chmod 700 "$casa/run"
chmod 711 "$casa" # tests of permissions act as another user
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME XDG_STATE_HOME DBUS_SESSION_BUS_ADDRESS DISPLAY WAYLAND_DISPLAY
export HOME=$casa TMPDIR=$casa/tmp XDG_RUNTIME_DIR=$casa/run LC_ALL=C.UTF-8 TZ=UTC
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
dbus-run-session -- "$@"
