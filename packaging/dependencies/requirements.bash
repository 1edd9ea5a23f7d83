# shellcheck shell=bash
# Finds out what of packages.list is missing on this machine.
#
# The package database is asked first: one dpkg-query for all rows takes some 20 ms, while each
# probe starts a program. Probes serve the other distributions, and tools that somebody built or
# unpacked without the package manager.

# Prefix of the absolute paths that are looked at; empty but in tests.
: "${CORVANA_SYSTEM_ROOT:=}"

# Rows that the caller needs, one element a row, filled by read_requirements.
requirement_package=()
requirement_minimum=()
requirement_probe=()
requirement_purpose=()

# Rows that are not met, filled by check_requirements: indices into the arrays above, and for
# each the version that was found and is too old, or nothing.
unmet=()
unmet_version=()

# read_requirements LIST FOR...: the rows of the file LIST that are for one of the words FOR.
read_requirements() {
    local list=$1 package minimum for probe purpose
    shift
    while read -r package minimum for probe purpose; do
        case $package in '' | '#'*) continue ;; esac
        case " $* " in *" $for "*) ;; *) continue ;; esac
        requirement_package+=("$package")
        requirement_minimum+=("$minimum")
        requirement_probe+=("$probe")
        requirement_purpose+=("$purpose")
    done <"$list"
}

# upstream_version VERSION: the dotted number in a package version, without epoch and revision.
# "4:12.2.0-3" gives 12.2.0, "6.4.2~rc1-2" and "6.4.2+dfsg-10" give 6.4.2.
upstream_version() {
    local version=${1#*:}
    printf '%s' "${version%%[!0-9.]*}"
}

# version_at_least VERSION MINIMUM: compares dotted numbers part by part; any version serves "-".
version_at_least() {
    [ "$2" = - ] && return 0
    local -a have want
    local part
    IFS=. read -r -a have <<<"$1"
    IFS=. read -r -a want <<<"$2"
    for part in "${!want[@]}"; do
        # 10# since a part such as 08 is no octal number.
        ((10#${have[part]:-0} > 10#${want[part]})) && return 0
        ((10#${have[part]:-0} < 10#${want[part]})) && return 1
    done
    return 0
}

# qt_query NAME: a property of the Qt that CMake would find: the one on the path, or the one of
# CMAKE_PREFIX_PATH. Fails without Qt 6.
qt_query() {
    local tool
    for tool in "${CMAKE_PREFIX_PATH:+${CMAKE_PREFIX_PATH%%[:;]*}/bin/qmake}" \
        qmake6 qmake-qt6 qtpaths6; do
        if [ -n "$tool" ] && command -v "$tool" >/dev/null; then
            case $tool in
            qtpaths6) qtpaths6 --query "$1" ;;
            *) "$tool" -query "$1" ;;
            esac
            return
        fi
    done
    return 1
}

# probe KIND:NAME: prints the version that was found, or nothing where it has no version.
# Fails when there is nothing to be found.
probe() {
    local name=${1#*:} folder output program
    local -a programs
    case $1 in
    command:*)
        # "convert,compare": the package has all of them, and something else may have one.
        IFS=, read -r -a programs <<<"$name"
        for program in "${programs[@]}"; do
            command -v "$program" >/dev/null || return 1
        done
        # Asked for its version only where one is demanded: not every program has --version.
        [ "$2" = - ] && return 0
        output=$("${programs[0]}" --version 2>/dev/null </dev/null)
        [[ $output =~ [0-9]+(\.[0-9]+)+ ]] && printf '%s' "${BASH_REMATCH[0]}"
        ;;
    qt:*)
        folder=$(qt_query QT_INSTALL_LIBS) || return 1
        [ -e "$folder/cmake/Qt6$name/Qt6${name}Config.cmake" ] || return 1
        qt_query QT_VERSION
        ;;
    pkgconfig:*)
        pkg-config --modversion "$name" 2>/dev/null
        ;;
    qtplugin:*)
        folder=$(qt_query QT_INSTALL_PLUGINS) || return 1
        [ -e "$folder/$name" ] || return 1
        qt_query QT_VERSION
        ;;
    qttexts:*)
        folder=$(qt_query QT_INSTALL_TRANSLATIONS) || return 1
        [ -e "$folder/$name" ] || return 1
        qt_query QT_VERSION
        ;;
    filter:*)
        folder=$(cups-config --serverbin 2>/dev/null) || folder=$CORVANA_SYSTEM_ROOT/usr/lib/cups
        [ -x "$folder/filter/$name" ]
        ;;
    clangrt:*)
        folder=$(clang++ -print-resource-dir 2>/dev/null) || return 1
        [ -e "$folder/lib/linux/libclang_rt.$name-$(uname -m).a" ]
        ;;
    font:*)
        [ -n "$(fc-list ":${name/#mono/spacing=mono}" 2>/dev/null)" ]
        ;;
    service:*)
        [ -e "$CORVANA_SYSTEM_ROOT/usr/share/dbus-1/services/$name.service" ]
        ;;
    typelib:*)
        compgen -G "$CORVANA_SYSTEM_ROOT/usr/lib*/girepository-1.0/$name.typelib" >/dev/null ||
            compgen -G "$CORVANA_SYSTEM_ROOT/usr/lib/*/girepository-1.0/$name.typelib" >/dev/null
        ;;
    python:*)
        # The system's own: others do not see the modules that packages bring.
        "$CORVANA_SYSTEM_ROOT/usr/bin/python3" -c "import $name" 2>/dev/null </dev/null
        ;;
    *)
        say "packages.list: no such kind of probe: $1"
        return 1
        ;;
    esac
}

# check_requirements: fills unmet and unmet_version; true when everything is there.
check_requirements() {
    local -A installed=()
    local index state package version provides minimum found name
    local -a provided
    unmet=()
    unmet_version=()

    if command -v dpkg-query >/dev/null; then
        # It complains about names it has never heard of; those simply stay out of the table.
        while IFS='|' read -r state package version provides; do
            [ "$state" = installed ] || continue
            installed[$package]=$(upstream_version "$version")
            # Newer releases merge development packages: the old name is then provided.
            read -r -a provided <<<"${provides//,/ }"
            for name in "${provided[@]}"; do
                [ -n "${installed[$name]-}" ] || installed[$name]=${installed[$package]}
            done
        done < <(dpkg-query -W \
            -f '${db:Status-Status}|${Package}|${Version}|${Provides}\n' \
            "${requirement_package[@]}" 2>/dev/null)
    fi

    for index in "${!requirement_package[@]}"; do
        package=${requirement_package[index]}
        minimum=${requirement_minimum[index]}
        found=${installed[$package]-}
        if [ -n "$found" ] && version_at_least "$found" "$minimum"; then
            continue
        fi
        if version=$(probe "${requirement_probe[index]}" "$minimum"); then
            version_at_least "$version" "$minimum" && continue
            found=${version:-$found}
        fi
        unmet+=("$index")
        unmet_version+=("$found")
    done
    [ ${#unmet[@]} -eq 0 ]
}

# unmet_packages: the names of the rows that are not met, in one line.
unmet_packages() {
    local index names=()
    for index in "${unmet[@]}"; do
        names+=("${requirement_package[index]}")
    done
    printf '%s' "${names[*]}"
}

# describe_unmet: one line for each row that is not met, with its minimum version and purpose.
describe_unmet() {
    local place index minimum note
    for place in "${!unmet[@]}"; do
        index=${unmet[place]}
        minimum=${requirement_minimum[index]}
        note=
        [ -n "${unmet_version[place]}" ] && note=" (${unmet_version[place]} is too old)"
        [ "$minimum" = - ] && minimum='' || minimum=">= $minimum"
        say "$(printf '  %-26s %-8s %s%s' "${requirement_package[index]}" "$minimum" \
            "${requirement_purpose[index]}" "$note")"
    done
}
