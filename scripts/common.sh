# shellcheck shell=bash
# What the scripts share: messages, paths, and the steps that take long. Sourced, never run.
set -euo pipefail
shopt -s inherit_errexit

HOME=${HOME:-$(getent passwd "$(id -u)" | cut -d: -f6)}
export HOME

# shellcheck disable=SC2034  # used by those that source this
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
# shellcheck disable=SC2034
repo=${scripts%/*}

case ${XDG_CACHE_HOME-} in
    /*) cache=$XDG_CACHE_HOME/tromelo ;;
    *) cache=$HOME/.cache/tromelo ;;
esac

say() { printf 'tromelo: %s\n' "$*" >&2; }
die() { say "$*"; exit 1; }

# hash: the first 16 hex digits of what stdin holds.
hash() { sha256sum | cut -c 1-16; }

# need_room MEGABYTES DIRECTORY: ends with a sentence where the disk is too full to begin.
need_room() {
    mkdir -p "$2" 2>/dev/null || die "$2 can't be made; set XDG_CACHE_HOME to a directory with room."
    [ -w "$2" ] || die "$2 can't be written to; set XDG_CACHE_HOME to a directory with room."
    local free
    free=$(df --output=avail -BM "$2" | tail -n 1 | tr -dc 0-9)
    [ "$free" -ge "$1" ] || die "$2 has $free MB of free space and $1 MB are needed;" \
        "make room, or set XDG_CACHE_HOME to a directory that has it."
}

# locked FILE WHAT: holds FILE's lock until this process ends, waiting for another's.
locked() {
    local fd
    exec {fd}>>"$1"
    flock -n "$fd" && return
    say "Another run is $2; waiting for it."
    flock "$fd"
}

# logged NAME WHAT COMMAND...: runs COMMAND quietly, saying what goes on, and for how long, as soon
# as it takes more than a moment. Where it fails, ends with the reason.
logged() {
    local log=$cache/logs/$1.log what=$2 started=$SECONDS status=0 stopped=
    shift 2
    { mkdir -p "$cache/logs" && : >"$log"; } 2>/dev/null \
        || die "$cache can't be written to; set XDG_CACHE_HOME to a directory with room."
    show_progress "$what" "$log" $$ &
    local ticker=$!
    trap 'stopped=yes' INT
    "$@" </dev/null >"$log" 2>&1 || status=$?
    trap - INT
    kill "$ticker" 2>/dev/null || true
    wait "$ticker" 2>/dev/null || true
    [ ! -t 2 ] || printf '\r\e[K' >&2
    [ -z "$stopped" ] || { say "$what: stopped."; exit 130; }
    [ $status = 0 ] || explain "$what" "$log"
    [ $((SECONDS - started)) -lt 2 ] || say "$what: took $((SECONDS - started)) s."
}

show_progress() { # WHAT LOG PARENT
    local never seconds=0 step
    exec {never}<> <(:)
    while kill -0 "$3" 2>/dev/null; do
        read -rt 1 -u "$never" || true
        seconds=$((seconds + 1))
        if [ -t 2 ]; then
            step=$(tail -c 300 "$2" 2>/dev/null | grep -ao '^\[[0-9]*/[0-9]*\]' | tail -n 1) || true
            printf '\r\e[Ktromelo: %s … %d s %s' "$1" "$seconds" "$step" >&2
        elif [ $seconds = 1 ]; then
            say "$1 …"
        elif [ $((seconds % 60)) = 0 ]; then
            say "$1 … $seconds s"
        fi
    done
}

# explain WHAT LOG: ends with one sentence where the reason is known, else with the log's end.
explain() {
    local network='Temporary failure|Could not (resolve|connect)|Network is unreachable'
    network+='|Connection (timed out|refused|failed)|No route to host|Cannot initiate the connection'
    if grep -aq 'No space left on device\|not enough free space' "$2"; then
        die "$1 failed: the disk is full. Make room, or set XDG_CACHE_HOME to a directory that has it."
    elif grep -Eaq "$network" "$2"; then
        die "$1 failed: the package mirror can't be reached. Check the network and try again."
    elif grep -aq 'NO_PUBKEY\|is not signed' "$2"; then
        die "$1 failed: this machine's Debian keys are too old. Upgrade debian-archive-keyring."
    fi
    tail -n 30 "$2" >&2
    die "$1 failed; the whole log is $2"
}

# need LIST...: what runs from here on needs these lists of packages too, besides run.
need() { export TROMELO_NEEDS="${TROMELO_NEEDS-} $*"; }

# package_list LIST...: the names in these lists of packages/, one a line.
package_list() {
    local name
    for name in "$@"; do
        sed 's/#.*//; s/[[:space:]]*$//; /^$/d' "$scripts/packages/$name.txt"
    done | sort -u
}

# make_sample: a clip to play is in the cache.
make_sample() {
    [ -e "$cache/clips/sample.mkv" ] || logged clips "Generating a clip to play" \
        "$scripts/enter" "$scripts/make-clips" "$cache/clips" sample.mp4 sample.mkv
}

# as_admin COMMAND...: runs it as root, with sudo where we aren't.
as_admin() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo -- "$@"
    fi
}

# may_be_admin: we are root, or sudo lets us, asking for a password where somebody can type it.
may_be_admin() {
    [ "$(id -u)" != 0 ] || return 0
    command -v sudo >/dev/null || return 1
    sudo -n true 2>/dev/null && return
    [ -t 0 ] && sudo -v
}

# install_packages NAME...: installs them on this machine, after saying so.
install_packages() {
    may_be_admin || die "Packages are missing; as root: apt install --no-install-recommends $*"
    say "Installing on this machine: $*"
    logged apt "Installing packages" as_admin env DEBIAN_FRONTEND=noninteractive sh -ec '
        dpkg --configure -a
        apt-get -o DPkg::Lock::Timeout=300 update
        exec apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends "$@"' sh "$@"
}
