#!/usr/bin/env bash
# The Debian package in a fresh Debian. See --help.
set -eu -o pipefail
cd "$(dirname "$0")/../.."

folder=build/package-check
root=$folder/root
screenshot=$folder/screenshot.png
units=3
patience=60 # seconds for the rows to appear

usage() {
    cat <<TEXT
Usage: packaging/linux/check.sh [PACKAGE.deb]

Makes a fresh, minimal Debian 12 in $root (needs root and a Debian mirror: the first one
that this machine's own packages come from), installs the package there with what it depends on and
nothing that is only recommended, and as an ordinary user, in a network of its own:

  - starts three simulated units and the program, until all units are listed; a picture of the
    window is then in $screenshot;
  - changes the log configuration in /etc and starts the program again, which ends the first copy and
    logs where it was told to;
  - removes the package with its configuration and looks for what it left behind.

Without PACKAGE.deb the one that packaging/linux/build.sh made is taken. The exit code is 0 only when
everything was seen to work. Nothing of this machine is changed but $folder.
TEXT
}

fail() {
    echo "check.sh: $1" >&2
    [ -s "${2:-}" ] && tail -n 30 "$2" >&2
    exit 1
}

# wait_for SECONDS COMMAND…: until the command succeeds.
wait_for() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$deadline" ] || return 1
        sleep 0.2
    done
}

inside() {
    chroot "$root" "$@"
}

# The program takes the place of the shell that calls this: for pipes and jobs.
as_viewer() {
    exec chroot --userspec=viewer:viewer "$root" env -i HOME=/home/viewer USER=viewer \
        XDG_RUNTIME_DIR=/home/viewer/run LANG=C.UTF-8 PATH=/usr/bin:/bin DISPLAY="${DISPLAY:-}" VELTO_DISCOVERY_INTERFACES=lo "$@"
}

log_of() {
    echo "$root/home/viewer/.local/share/Orvex/QuiveraApp/$1"
}

all_read() {
    local matching
    matching=$(grep -cE 'DeviceInfoManager: .* read, network' "$(log_of "$1")" 2>/dev/null) && [ "$matching" -ge $units ]
}

has_ended() {
    ! kill -0 "$1" 2>/dev/null
}

show_display() {
    mkdir -p "$root/tmp/.X11-unix" /tmp/.X11-unix
    mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
    rm -f "$folder/display"
    Xvfb -displayfd 3 -screen 0 1000x1000x24 -nolisten tcp -ac 3>"$folder/display" 2>"$folder/xvfb.log" &
    display=$!
    trap 'kill $display' EXIT
    wait_for 20 test -s "$folder/display" || fail "the virtual display did not start:" "$folder/xvfb.log"
    DISPLAY=:$(cat "$folder/display")
    export DISPLAY
}

# In a network, process list and mounts of its own: all of them end with it.
run_programs() {
    local simulator_log=$folder/simulator.log config=$root/etc/quivera/QuiveraApp.log.config first second
    ip link set lo up
    mount -t proc proc "$root/proc"
    mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"

    as_viewer kelm-simulator --help | grep -F "$1" >/dev/null || fail "kelm-simulator does not tell its version"
    as_viewer Quivera --help | grep -F -- --hostname >/dev/null || fail "Quivera does not show its options"
    show_display
    as_viewer kelm-simulator --scenario /usr/share/doc/quivera/examples/three-units.json >"$simulator_log" 2>&1 &
    wait_for 20 grep -q '^all units ready' "$simulator_log" || fail "the units did not start:" "$simulator_log"

    as_viewer Quivera &
    first=$!
    wait_for $patience all_read QuiveraApp.log ||
        fail "not all $units units were listed within $patience s:" "$(log_of QuiveraApp.log)"
    grep -E 'DeviceInfoManager: .* (listed|read)' "$(log_of QuiveraApp.log)"
    sleep 3 # the splash goes after 2.5 s
    import -window root "$screenshot"

    grep -q '<file_name>QuiveraApp.log<' "$config" || fail "the log configuration is not where it should be"
    sed -i 's/<file_name>QuiveraApp.log</<file_name>Elsewhere.log</' "$config"
    as_viewer Quivera &
    second=$!
    wait_for 20 has_ended $first || fail "a second copy did not end the first"
    wait $first || fail "the first copy did not end cleanly"
    wait_for $patience all_read Elsewhere.log || fail "the second copy did not log where the changed configuration says"
    kill -TERM $second
    wait $second || fail "the second copy did not end cleanly"
}

make_root() {
    local mirror
    mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Release: bookworm' | head -n 1)
    [ -n "$mirror" ] || fail "no Debian mirror is configured on this machine"
    rm -rf --one-file-system "$root"
    mkdir -p "$folder"
    echo "Making a fresh Debian in $root"
    debootstrap --variant=minbase bookworm "$root" "$mirror" >"$folder/debootstrap.log" 2>&1 ||
        fail "debootstrap failed:" "$folder/debootstrap.log"
    inside useradd --create-home viewer
    inside install -d -m 700 -o viewer -g viewer /home/viewer/run
}

install_package() {
    cp "$1" "$root/package.deb"
    inside env DEBIAN_FRONTEND=noninteractive sh -c \
        'apt-get update && apt-get install -y --no-install-recommends /package.deb' >"$folder/install.log" 2>&1 ||
        fail "the package does not install:" "$folder/install.log"
    rm "$root/package.deb"
    echo "Installed with $(grep -c '^Setting up' "$folder/install.log") packages in all"
}

remove_package() {
    inside env DEBIAN_FRONTEND=noninteractive apt-get purge -y quivera >"$folder/remove.log" 2>&1 ||
        fail "the package does not go:" "$folder/remove.log"
    local left
    left=$(find "$root" -xdev -ipath '*quivera*' -not -path "$root/home/*")
    [ -z "$left" ] || fail "the package left behind: $left"
}

case ${1:-} in
--help | -h) usage && exit ;;
--in-own-namespace)
    run_programs "$2"
    exit
    ;;
-*)
    echo "check.sh: unknown option $1; try --help" >&2
    exit 2
    ;;
esac

[ "$(id -u)" -eq 0 ] || fail "needs root, to make a Debian of its own"
package=${1:-$(echo build/package/quivera_*.deb)}
[ -f "$package" ] || fail "there is no $package; packaging/linux/build.sh makes one"
. tools/dependencies.sh
# Word splitting wanted: it is a list.
require $packages_deb_check

version=$(dpkg-deb --field "$package" Version)
make_root
install_package "$package"
unshare --net --mount --pid --fork --kill-child packaging/linux/check.sh --in-own-namespace "${version%-*}"
remove_package
echo "The package installs, runs, is configured and goes as it should. Picture: $PWD/$screenshot"
