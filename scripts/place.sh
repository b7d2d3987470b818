# shellcheck shell=bash
# Decides where Tromelo is built and run: on the machine itself, where its packages are new enough,
# else in a Debian 13 root of our own. Sourced after common.sh.

# Part of the root's key: raise it when make-root makes another root from the same packages.
root_format=1
root_suite=trixie
all_lists=(run virtual test bench) # what a root of our own has

root_key() {
    { echo "$root_format $root_suite $(uname -m)"; package_list "${all_lists[@]}"
        package_list backports; } | hash
}

# machine_is_new_enough: the libraries that decide are here, and new enough.
machine_is_new_enough() {
    command -v pkg-config >/dev/null || return 1
    pkg-config --exists 'mpv >= 2.3' 'Qt6Quick >= 6.8' || return 1
    pkg-config --exists wlroots-0.19 || pkg-config --exists wlroots-0.18
}

# missing_packages: what the lists that are needed name and this machine lacks, one name a line.
missing_packages() {
    local installed
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' | sed -n 's/^installed //p')
    # shellcheck disable=SC2086  # one list a word
    comm -23 <(package_list run ${TROMELO_NEEDS-}) <(sort -u <<<"$installed")
}

# machine_is_complete: nothing has to be installed first.
machine_is_complete() {
    machine_is_new_enough || return 1
    if command -v dpkg-query >/dev/null; then
        [ -z "$(missing_packages)" ]
    else # another distribution's names differ: look for the tools themselves
        local tool tools=(cmake ninja c++ xdpyinfo)
        [ -z "${TROMELO_NEEDS-}" ] || tools+=(ffmpeg Xvfb openbox xrdb)
        for tool in "${tools[@]}"; do
            command -v "$tool" >/dev/null || return 1
        done
    fi
}

# machine_can_serve: apt has all of it in versions that serve.
machine_can_serve() {
    command -v apt-get >/dev/null || return 1
    local ID='' VERSION_ID=''
    # shellcheck source=/dev/null
    . /etc/os-release
    [ "$ID" = debian ] && [ "${VERSION_ID:-99}" -ge 13 ]
}

# place: prints "machine", or the path of a root that is whole, after doing what that takes.
place() {
    if [ -e /etc/tromelo-root ]; then
        echo machine
        return
    fi
    local root
    # shellcheck disable=SC2154  # from common.sh
    root=$cache/root-$(root_key)
    if [ "${TROMELO_PLACE-}" != root ]; then
        if machine_is_complete; then
            echo machine
            return
        fi
        if [ ! -e "$root/etc/tromelo-root" ] && machine_can_serve; then
            # shellcheck disable=SC2046  # one name per word
            install_packages $(missing_packages)
            echo machine
            return
        fi
    fi
    # shellcheck disable=SC2154
    [ -e "$root/etc/tromelo-root" ] || "$scripts/make-root" "$root" >&2
    echo "$root"
}
