# shellcheck shell=bash
# What ./run, ./test and ./package have in common: bring the machine and the build folder up to date.
# Reads project_root, the absolute path of the checkout.

set -u

dependencies=$project_root/packaging/dependencies
# shellcheck source=packaging/dependencies/console.bash
. "$dependencies/console.bash"
# shellcheck source=packaging/dependencies/requirements.bash
. "$dependencies/requirements.bash"
# shellcheck source=packaging/dependencies/apt.bash
. "$dependencies/apt.bash"
# shellcheck source=packaging/dependencies/build.bash
. "$dependencies/build.bash"

# "yes" answers every question; continuous integration has nobody to ask.
assume_yes=no
[ "${CI-}" = true ] && assume_yes=yes
packages_were_installed=

# Debian keeps cupsfilter where only an administrator's path leads.
for folder in /usr/local/sbin /usr/sbin /sbin; do
    PATH=$PATH:$CORVANA_SYSTEM_ROOT$folder
done
export PATH

# An interrupted compiler or CMake leaves nothing half-written that the next start would trust.
trap 'exit 130' INT

# prepare PRESET TARGET FOR...: installs what the given columns of packages.list name, and builds that
# target of the preset. Ends the script where that fails.
prepare() {
    local preset=$1 target=$2
    shift 2
    read_requirements "$dependencies/packages.list" "$@"
    if ! check_requirements; then
        install_unmet
        packages_were_installed=yes
    fi
    build "$preset" "$target" || exit 1
}
