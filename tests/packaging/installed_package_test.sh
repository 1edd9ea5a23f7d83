#!/usr/bin/env bash
# The Debian package on a machine: installed by dpkg, used by root and by a normal user, removed again.
#
# The machine is this one as it is, seen through an overlay that takes all changes, and with an empty
# folder in place of the checkout: dpkg looks into the real database for what the package depends on,
# and nothing can come from the build. Where no overlay can be mounted, as in a container without
# rights, it is an empty folder, dpkg --root, which works without a chroot since the package has no
# scripts, and the program finds its libraries on the host.

# shellcheck source=tests/packaging/support.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"

[ "$(id -u)" -eq 0 ] || {
    echo 'Packages are installed by root; this is none.'
    exit 77
}
package=$(find "$packages" -name '*.deb' 2>/dev/null)
[ -f "$package" ] || {
    echo "There is no package in $packages; packaging.package makes it."
    exit 1
}
# All mounts are those of this test, and end with it.
if [ -z "${CORVANA_TEST_MOUNTS-}" ]; then
    if unshare --mount --propagation private true 2>/dev/null; then
        CORVANA_TEST_MOUNTS=own exec unshare --mount --propagation private bash "$0" "$@"
    fi
    CORVANA_TEST_MOUNTS=none
fi

# new_machine: sets $machine, its root; $prefix, where programs find /usr of the machine; and $enter,
# what goes in front of a command that runs on it.
new_machine() {
    machine=$work/machine
    mkdir "$machine"
    if [ "$CORVANA_TEST_MOUNTS" = own ] && mount_machine 2>"$work/err"; then
        kind=overlay
        prefix=/usr
        enter=(chroot "$machine")
        # Its tester may use the program: the machine begins without it.
        if chroot "$machine" dpkg-query --status corvana-print >/dev/null 2>&1; then
            dpkg_on_machine --purge corvana-print
        fi
    else
        kind=folder
        prefix=$machine/usr
        enter=()
        mkdir -p "$machine/var/lib/dpkg"/{info,updates}
        touch "$machine/var/lib/dpkg/status"
    fi
}
mount_machine() {
    local folder
    mkdir "$work/changes" || return
    # An overlay cannot keep its changes in another overlay, as the root of a container is.
    mount -t tmpfs -o mode=755 changes "$work/changes" || return
    mkdir "$work/changes"/{upper,work} || return
    mount -t overlay overlay "$machine" \
        -o "lowerdir=/,upperdir=$work/changes/upper,workdir=$work/changes/work" 2>/dev/null ||
        return
    for folder in /proc /dev; do
        mount --rbind $folder "$machine$folder" || return
    done
    mount -t tmpfs -o mode=1777 tmp "$machine/tmp" || return
    # A checkout in /tmp is hidden already.
    [ ! -d "$machine$source_root" ] || mount -t tmpfs checkout "$machine$source_root" || return
    # The homes of the users are on the machine under the same path.
    mkdir -p "$machine$work" && mount --bind "$work" "$machine$work"
}
put_away() {
    if [ -n "${server_process-}" ]; then
        kill "$server_process" 2>/dev/null
        wait "$server_process" 2>/dev/null
    fi
    mountpoint -q "$work/machine" && umount --lazy --recursive "$work/machine"
    mountpoint -q "$work/changes" && umount --lazy "$work/changes"
}

# dpkg_on_machine ARGUMENT...
dpkg_on_machine() {
    local options=(--root="$machine" --force-script-chrootless --force-depends)
    [ "$kind" = folder ] || options=()
    "${enter[@]}" dpkg "${options[@]}" "$@" >"$work/out" 2>"$work/err" || fail "dpkg $* failed"
}
install_package() {
    local file=$package
    if [ "$kind" = overlay ]; then
        cp "$package" "$machine/tmp/package.deb"
        file=/tmp/package.deb
    fi
    dpkg_on_machine --install "$file"
}
# on_machine COMMAND...: as root.
on_machine() { as 0 "$@" >"$work/out" 2>"$work/err"; }

# start_print_server: one of its own, as the machine sees it; sets $server, where it listens, and
# $server_folder, which has all that it writes.
start_print_server() {
    local folder
    # Sockets have short names only.
    server_folder=$machine/tmp/cups
    server=/tmp/cups/socket
    for folder in root spool tmp cache state log; do
        mkdir -p "$server_folder/$folder"
    done
    cat >"$server_folder/cups-files.conf" <<END
User lp
Group lp
SystemGroup root
ServerRoot /tmp/cups/root
RequestRoot /tmp/cups/spool
TempDir /tmp/cups/tmp
CacheDir /tmp/cups/cache
StateDir /tmp/cups/state
AccessLog /tmp/cups/log/access
ErrorLog /tmp/cups/log/error
PageLog /tmp/cups/log/page
END
    cat >"$server_folder/cupsd.conf" <<END
Listen $server
Browsing No
WebInterface No
DefaultAuthType None
DirtyCleanInterval 0
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
END
    "${enter[@]}" cupsd -f -c /tmp/cups/cupsd.conf -s /tmp/cups/cups-files.conf \
        >"$work/cupsd.out" 2>&1 </dev/null &
    server_process=$!
    until [ -S "$machine$server" ]; do
        kill -0 $server_process 2>/dev/null ||
            fail 'the print server ended' "$(cat "$work/cupsd.out" "$server_folder/log/error")"
        sleep 0.05
    done
}

aDocumentIsPrintedByRootAndByANormalUser() {
    new_machine
    install_package
    for user in $(users); do
        expect_prints "$user" "$prefix"
    done
}

# What is tested is the package: neither the build folder nor the checkout can be seen.
theMachineHasNoCheckout() {
    new_machine
    [ "$kind" = overlay ] || skip 'Without an overlay everything of this machine is seen.'
    on_machine ls -A "$source_root"
    expect_nothing 'there is a checkout' "$(cat "$work/out")"
}

cupsOffersThePrinters() {
    local ppd name
    new_machine
    [ "$kind" = overlay ] || skip 'CUPS looks for PPDs in /usr/share/ppd only.'
    install_package
    for ppd in "$source_root"/resources/ppd/*.ppd; do
        name=$(basename "$ppd")
        on_machine /usr/lib/cups/daemon/cups-driverd cat "lsb/usr/corvana/$name"
        cmp "$ppd" "$work/out" || fail "CUPS has another PPD, or none, of the name $name"
    done
}

aQueueIsMadeOfAnInstalledPpd() {
    new_machine
    [ "$kind" = overlay ] || skip 'CUPS looks for PPDs in /usr/share/ppd only.'
    install_package
    start_print_server
    on_machine lpinfo -h "$server" -m || fail 'lpinfo failed'
    grep -q '^lsb/usr/corvana/corvana-cl5.ppd Corvana' "$work/out" || fail 'not listed'
    on_machine lpadmin -h "$server" -p office -E -v ipp://192.0.2.7/ipp/print \
        -m lsb/usr/corvana/corvana-cl5.ppd || fail 'the queue was not made'
    grep -q '^\*QXPrintDialogExtension:' "$server_folder/root/ppd/office.ppd" ||
        fail 'the queue does not name its panels'
}

removalLeavesNothing() {
    new_machine
    everything >"$work/before"
    install_package
    everything >"$work/between"
    ! cmp -s "$work/before" "$work/between" || fail 'nothing was installed'
    dpkg_on_machine --purge corvana-print
    everything >"$work/after"
    expect_nothing 'came with the package and stayed:' "$(diff "$work/before" "$work/after")"
    expect_nothing 'dpkg still knows of it' "$(find "$machine/var/lib/dpkg/info" -name 'corvana*')"
}
# everything: the paths in the folders that only packages change, without the indices that others make
# of what is there.
everything() {
    local places=()
    for place in etc opt usr; do
        [ -d "$machine/$place" ] && places+=("$place")
    done
    [ ${#places[@]} -eq 0 ] ||
        (cd "$machine" && find "${places[@]}" ! -name '*.cache' | LC_ALL=C sort)
}

run_tests
