# shellcheck shell=bash
# Makes Debian 13 file systems with the machine's own mirror. Sourced after place.sh.
# shellcheck disable=SC2154  # root_suite is place.sh's

keyring=/usr/share/keyrings/debian-archive-keyring.gpg
as_root=(unshare --mount)
[ "$(id -u)" = 0 ] || as_root=(unshare --user --map-root-user --map-auto --mount)

require_tools() {
    local missing=() tool
    for tool in mmdebstrap mount; do
        command -v $tool >/dev/null || missing+=("$tool")
    done
    [ "$(id -u)" = 0 ] || command -v newuidmap >/dev/null || missing+=(uidmap)
    [ -e "$keyring" ] || missing+=(debian-archive-keyring)
    [ ${#missing[@]} = 0 ] && return
    command -v apt-get >/dev/null \
        || die "This machine's libmpv, Qt or wlroots is too old, and ${missing[*]} is missing."
    install_packages "${missing[@]}"
}

require_rights() {
    "${as_root[@]}" true 2>/dev/null && return
    [ "$(id -u)" != 0 ] || die "Root may not mount here, so no Debian 13 root can be made;" \
        "use Debian 13 itself, or give this container the right to mount."
    die "This machine gives $(id -un) no user namespaces (see /etc/subuid and" \
        "kernel.unprivileged_userns_clone), so no Debian 13 root can be made; try as root."
}

# The mirror that the machine itself installs from, also for security updates.
print_sources() {
    if [ -n "${TROMELO_MIRROR-}" ]; then
        echo "deb $TROMELO_MIRROR $root_suite main"
        return
    fi
    local distribution
    distribution=$(sed -n 's/^ID=//p' /etc/os-release)
    # Whose packages a mirror has is known only once its lists were fetched.
    # shellcheck disable=SC2016  # apt's own variables
    apt-get indextargets --format '$(SITE) $(RELEASE) $(COMPONENT) $(ORIGIN)' 'Created-By: Packages' |
        sort -u | awk -v distribution="$distribution" -v suite="$root_suite" '
            $3 == "main" && ($4 == "Debian" || ($4 !~ /^[A-Z]/ && distribution == "debian")) {
                kind = $2
                sub(/^[^-]*/, "", kind)
                if (kind == "" || kind == "-updates" || kind == "-security")
                    print "deb", $1, suite kind, "main"
            }'
}

# add_backports: appends the suite of backports to the sources; fails where the mirror lacks it.
add_backports() {
    local mirror probe
    mirror=$(awk '{ print $2; exit }' <<<"${sources[0]}")
    probe=$(mktemp)
    if ! /usr/lib/apt/apt-helper download-file \
        "${mirror%/}/dists/$root_suite-backports/InRelease" "$probe" >/dev/null 2>&1; then
        rm -f "$probe"
        return 1
    fi
    rm -f "$probe"
    sources+=("deb $mirror $root_suite-backports main")
}

# The machine's way to its mirror, a proxy for example.
print_apt_options() {
    apt-config dump Acquire::http Acquire::https 2>/dev/null | grep -E '^Acquire::https?::.*"[^"]' || true
}

# prepare_bootstrap: what can be missing is here, or this ends with a sentence.
prepare_bootstrap() {
    require_tools
    require_rights
    mapfile -t sources < <(print_sources)
    [ ${#sources[@]} != 0 ] || die "This machine's libmpv, Qt or wlroots is too old, and its apt" \
        "names no Debian mirror to get newer ones from; set TROMELO_MIRROR to the address of one," \
        "or use packaging/Containerfile."
}

# bootstrap TARGET PACKAGES MMDEBSTRAP-OPTION...: PACKAGES are separated by commas.
# The maker runs as the first process of its own namespaces, so that its mounts and children end
# with it. It ends as soon as this script does, however that ends: its stdin is then closed.
bootstrap() {
    local target=$1 options=(--variant=apt --mode=root --include="$2"
        --aptopt='Apt::Install-Recommends "false"' --dpkgopt=force-unsafe-io
        --keyring="$keyring" --skip=chroot/mount/sys "${@:3}") option alive
    while read -r option; do
        options+=(--aptopt="$option")
    done < <(print_apt_options)
    # shellcheck disable=SC2016,SC2034  # the inner shell's own words; held, never written to
    exec {alive}> >(exec "${as_root[@]}" --pid --fork --kill-child bash -c '
        mmdebstrap "$@" </dev/null & maker=$!
        (read -r _ || true) <&0 &
        wait -n; status=$?
        ! kill -0 $maker 2>/dev/null || exit 1
        exit $status' bash "${options[@]}" "$root_suite" "$target" "${sources[@]}")
    wait $!
}
