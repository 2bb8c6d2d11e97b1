# shellcheck shell=bash disable=SC2154 # ./dev sets checkout, cache and root
# A Debian 13 root for systems whose compiler is too old. Sourced by ./dev.
# The root is prepared beside its place and renamed when it is whole. The checkout is bound into it at
# the same path, in a mount namespace of its own, so nothing stays mounted.

mirror_of_this_machine() {
    # shellcheck disable=SC2016 # apt's own placeholder
    apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 2>/dev/null |
        grep -m1 '/debian/*$' || true
}

# make_root DIRECTORY SUITE: a minimal Debian.
make_root() {
    local mirror proxies
    mirror=$(mirror_of_this_machine)
    quietly debootstrap --variant=minbase "$2" "$1" ${mirror:+"$mirror"} || return
    cp /etc/resolv.conf "$1/etc/resolv.conf" 2>/dev/null || true
    proxies=$(apt-config dump 2>/dev/null | grep -iE '^Acquire::[a-z]+::proxy' || true)
    [ -z "$proxies" ] || echo "$proxies" >"$1/etc/apt/apt.conf.d/01proxy"
}

# in_root DIRECTORY COMMAND...: runs the command in the root, in this checkout.
in_root() {
    local directory=$1
    shift
    mkdir -p "$directory$checkout" "$directory$cache/ccache" "$cache/ccache"
    # shellcheck disable=SC2016 # expanded by the inner shell
    unshare --mount --propagation unchanged bash -c '
        set -e
        root=$1 checkout=$2 ccache=$3
        shift 3
        mount --make-rprivate / 2>/dev/null || true # fails where / is itself such a root: private already
        mount -t proc proc "$root/proc"
        mount --rbind /dev "$root/dev"
        mount --bind "$checkout" "$root$checkout"
        mount --bind "$ccache" "$root$ccache"
        exec chroot "$root" /usr/bin/env CORVANE_IN_ROOT=1 bash -c "cd \"\$0\" && exec \"\$@\"" "$checkout" "$@"
    ' in-root "$directory" "$checkout" "$cache/ccache" "$@"
}

# Makes the root if there is none, and installs in it what the given commands lack.
prepare_root() {
    [ "$(id -u)" -eq 0 ] || fail "the compiler of this system is too old (GCC 13 or newer is needed), and a Debian 13 root
can only be prepared by root. Run ./dev as root once, or install g++-13 or newer and its packages:
$(missing_packages "$@" | tr "\n" " ")"
    mkdir -p "$cache"
    exec 9>"$cache/lock"
    flock 9
    local tool
    for tool in debootstrap unshare; do
        if ! command -v "$tool" >/dev/null 2>&1; then
            say "Installing $tool"
            install_with_apt debootstrap util-linux ||
                fail "debootstrap could not be installed (is there a network?). By hand:  apt-get install debootstrap"
        fi
    done
    if [ ! -d "$root" ]; then
        say "Preparing a Debian 13 root in $root (once)"
        rm -rf "$cache"/debian13.new.*
        make_root "$root.new.$$" trixie || {
            rm -rf "$root.new.$$"
            fail "the Debian 13 root could not be made (is there a network?); the log is $cache/setup.log"
        }
        mv "$root.new.$$" "$root"
    fi
    local packages
    packages=$(in_root "$root" bash -c '. cmake/dev/setup.sh; missing_packages "$@"' setup "$@" | tr '\n' ' ') ||
        fail "the Debian 13 root in $root cannot be entered (unshare and mount must be allowed)"
    if [ -n "$packages" ]; then
        say "Installing in the Debian 13 root: $packages"
        # shellcheck disable=SC2016,SC2086 # expanded by the inner shell; a list of words
        quietly in_root "$root" env DEBIAN_FRONTEND=noninteractive bash -c '
            apt-get update && dpkg --configure -a && apt-get install -y --no-install-recommends "$@"' apt $packages ||
            fail "the packages could not be installed in $root (is there a network?); the log is $cache/setup.log"
    fi
    flock -u 9
    use_root=yes
}

# Runs one of the commands where the compiler is.
in_environment() {
    if [ -n "${use_root:-}" ]; then
        in_root "$root" env CORVANE_CACHE="$cache" CI="${CI:-}" LC_ALL=C.UTF-8 TERM="${TERM:-dumb}" ./dev in-environment "$@"
    else
        (
            cd "$checkout" || exit
            "run_$1" "${@:2}"
        )
    fi
}

# on_this_machine PRESET PROGRAM ARGUMENT...: runs a program that was built, on this machine's own
# files; one from the root runs with the root's loader and libraries.
on_this_machine() {
    local libraries=$checkout/build/$1/bin program=$checkout/build/$1/bin/$2
    shift 2
    [ -x "$program" ] || fail "there is no program $(basename "$program")"
    if [ -n "${use_root:-}" ]; then
        exec "$root/lib64/ld-linux-x86-64.so.2" --argv0 "$program" \
            --library-path "$libraries:$root/usr/lib/x86_64-linux-gnu" "$program" "$@"
    fi
    exec "$program" "$@"
}

# The set-up proved: a new minimal root of the given Debian suite, a clean clone, the two commands.
fresh() {
    local suite=${1:-trixie} place status=0
    [ "$(id -u)" -eq 0 ] || fail "fresh makes a new root with debootstrap and needs to be root"
    command -v debootstrap >/dev/null 2>&1 || install_with_apt debootstrap
    place=$(mktemp -d)
    say "A new minimal Debian $suite root"
    make_root "$place/root" "$suite" || fail "the root could not be made"
    git clone -q "$checkout" "$place/root/src"
    say "A clean clone: ./dev demo, ./dev test, and how long the set-up takes when nothing is missing"
    # shellcheck disable=SC2016 # expanded by the inner shell
    unshare --mount --propagation unchanged bash -c '
        set -e
        mount --make-rprivate / 2>/dev/null || true
        mount -t proc proc "$1/proc"
        mount --rbind /dev "$1/dev"
        chroot "$1" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin bash -c "
            set -e
            cd /src
            ./dev demo
            ./dev test
            start=\$(date +%s%N)
            ./dev setup
            took=\$(((\$(date +%s%N) - start) / 1000000))
            echo \"set-up of a further run: \$took ms\"
            [ \$took -lt 3000 ]"
    ' fresh "$place/root" || status=$?
    rm -rf --one-file-system "$place"
    [ "$status" -eq 0 ] || fail "fresh: the commands failed in a new root"
    say "fresh: a new Debian $suite runs the demo and all tests"
}
