# shellcheck shell=bash
# Installs what is missing on Debian and its derivatives. Needs console.bash and
# requirements.bash.
#
# Nothing in here waits for an answer that nobody can give: apt-get and what it starts ask no
# questions, sudo is told not to ask where there is no terminal, and locks are waited for a
# limited time.

# Exit status of ./run, ./test and ./package when packages are missing and cannot be installed.
readonly status_packages_missing=3

# Seconds that another package manager may hold a lock, and the pause between two tries.
readonly lock_patience=300 lock_pause=5

# apt-get with what has to stand in front of it, set by prepare_apt.
apt_get=()
apt_lists_are_fresh=
apt_output=

# system_name: what the distribution calls itself.
system_name() {
    local name
    # shellcheck source=/dev/null
    name=$(. "$CORVANA_SYSTEM_ROOT/etc/os-release" 2>/dev/null && printf '%s' "${PRETTY_NAME-}")
    printf '%s' "${name:-This system}"
}

# Whether this is Debian or a derivative. Having apt-get or dpkg says little: other families
# offer both as tools or for packages of their own.
system_is_debian() {
    local family
    # shellcheck source=/dev/null
    family=$(. "$CORVANA_SYSTEM_ROOT/etc/os-release" 2>/dev/null &&
        printf '%s' "${ID-} ${ID_LIKE-}")
    case " $family " in
    *' debian '* | *' ubuntu '*) command -v apt-get >/dev/null && command -v apt-cache >/dev/null ;;
    *) return 1 ;;
    esac
}

# Whether apt has no list of packages at all, as in container images.
apt_lists_are_empty() {
    local list
    for list in "$CORVANA_SYSTEM_ROOT"/var/lib/apt/lists/*_Packages*; do
        [ -e "$list" ] && return 1
    done
    return 0
}

# prepare_apt: sets apt_get; fails where this user cannot become root.
prepare_apt() {
    local privilege=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || return 1
        if can_ask; then
            privilege=(sudo)
        elif sudo -n true 2>/dev/null; then
            privilege=(sudo -n)
        else
            return 1
        fi
    fi
    # env, since sudo passes few variables on. Messages are in English, as with_patience reads
    # them.
    apt_get=("${privilege[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C
        apt-get -q -o "DPkg::Lock::Timeout=$lock_patience")
}

# with_patience COMMAND...: runs it, shows what it says and keeps that in apt_output; runs it again
# for as long as another process has a lock that apt-get does not wait for itself: its time-out
# covers the lock of dpkg, but neither that of the lists nor that of the archives.
with_patience() {
    local status waited=0 log
    log=$(mktemp) || return
    while :; do
        "$@" </dev/null 2>&1 | tee "$log" >&2
        status=${PIPESTATUS[0]}
        apt_output=$(<"$log")
        if [ "$status" -eq 0 ] || [ $waited -ge $lock_patience ] ||
            [[ $apt_output != *'Could not get lock'* ]]; then
            rm -f "$log"
            return "$status"
        fi
        [ $waited -gt 0 ] || say 'Another package manager is at work; waiting for it.'
        sleep $lock_pause
        waited=$((waited + lock_pause))
    done
}

# update_lists: fetches the lists of packages.
update_lists() {
    local command=("${apt_get[@]}" -o Acquire::Retries=3 update)
    say "Updating the lists of packages: $(command_line "${command[@]}")"
    with_patience "${command[@]}" || return
    apt_lists_are_fresh=yes
}

# check_offers PACKAGE...: whether apt offers every package, and new enough; says which not.
check_offers() {
    local -A offered=()
    local word value package place index minimum result=0
    while read -r word value; do
        case $word in
        Candidate:) offered[$package]=$value ;;
        *:) [ -z "$value" ] && package=${word%:} ;;
        esac
    done < <(LC_ALL=C apt-cache policy "$@" 2>/dev/null)

    for place in "${!unmet[@]}"; do
        index=${unmet[place]}
        package=${requirement_package[index]}
        minimum=${requirement_minimum[index]}
        value=${offered[$package]-}
        case $value in
        '')
            offer_problems+=("  $package: not offered")
            result=1
            ;;
        # A name that another package provides has no version of its own.
        '(none)') ;;
        *)
            value=$(upstream_version "$value")
            if ! version_at_least "$value" "$minimum"; then
                offer_problems+=("  $package: $value, needed is $minimum")
                result=1
            fi
            ;;
        esac
    done
    return $result
}

# install_packages PACKAGE...: says what it takes, asks on a terminal, installs.
install_packages() {
    # --no-remove: whatever is in the way of a package belongs to the user and stays.
    local options=(--no-install-recommends --no-remove)
    local command=("${apt_get[@]}" -o Dpkg::Use-Pty=0
        -o Dpkg::Options::=--force-confdef -o Dpkg::Options::=--force-confold
        install --yes "${options[@]}" "$@")
    local plan

    # With --print-uris nothing is fetched or installed, and no rights are needed.
    if ! plan=$(LC_ALL=C apt-get -q install --print-uris "${options[@]}" "$@" 2>&1 </dev/null); then
        say 'The packages cannot be installed:' "$plan"
        return 1
    fi
    say "These packages are missing:" "  $*"
    say "$(grep -E '^(Need to get|After this operation)' <<<"$plan" | sed 's/^/  /')"
    say "They are installed with:" "  $(command_line "${command[@]}")"
    if [ "$assume_yes" != yes ] && can_ask && ! ask 'Go on?'; then
        say 'Nothing was installed.'
        return 1
    fi
    with_patience "${command[@]}" && return
    # Lists age: a package that was replaced since is no longer where they say.
    [ -z "$apt_lists_are_fresh" ] && [[ $apt_output == *'Failed to fetch'* ]] || return
    update_lists && with_patience "${command[@]}"
}

# install_unmet: installs the rows that check_requirements found unmet, or says what a person has
# to do and ends the script. Reads assume_yes: "yes" installs without asking.
install_unmet() {
    local packages offer_problems=() manual='apt-get '
    read -r -a packages <<<"$(unmet_packages)"

    if ! system_is_debian; then
        say "$(system_name) has packages of its own. Please install these, here by their Debian" \
            'names, and start again:'
        describe_unmet
        exit $status_packages_missing
    fi
    if ! prepare_apt; then
        apt_lists_are_empty && manual='apt-get update && apt-get '
        say 'Packages are missing:'
        describe_unmet
        say 'Please run this as root, then start again:' \
            "  ${manual}install --no-install-recommends ${packages[*]}"
        exit $status_packages_missing
    fi
    if apt_lists_are_empty && ! update_lists; then
        say 'The lists of packages could not be updated.'
        exit $status_packages_missing
    fi
    # What the lists do not offer may have come since they were fetched.
    if ! check_offers "${packages[@]}" &&
        { [ -n "$apt_lists_are_fresh" ] || ! update_lists ||
            { offer_problems=() && ! check_offers "${packages[@]}"; }; }; then
        say "$(system_name) lacks packages, or has them too old:" "${offer_problems[@]}" \
            'Debian 12, Ubuntu 24.04 and everything newer have them.'
        exit $status_packages_missing
    fi
    if ! install_packages "${packages[@]}"; then
        say "Without these packages there is nothing to build:" "  ${packages[*]}"
        exit $status_packages_missing
    fi
    # The path may have been searched in vain before.
    hash -r
    if ! check_requirements; then
        say 'The installation has ended, and still these are missing:'
        describe_unmet
        exit $status_packages_missing
    fi
}
