# shellcheck shell=bash
# Configures and builds with the presets of CMakePresets.json. Needs console.bash and
# requirements.bash; reads project_root, the absolute path of the checkout.

# Seconds are what ./run may take before the program starts, so nothing is done twice: CMake
# runs only where Ninja would not start it by itself, and a build without work says nothing.

# memory_for_builds: kilobytes that are free, the limit of a container included.
memory_for_builds() {
    local key value free=0 file limit
    while read -r key value _; do
        [ "$key" = MemAvailable: ] && free=$value
    done <"$CORVANA_SYSTEM_ROOT/proc/meminfo"
    for file in memory.max memory/memory.limit_in_bytes; do
        if read -r limit 2>/dev/null <"$CORVANA_SYSTEM_ROOT/sys/fs/cgroup/$file" &&
            [[ $limit =~ ^[0-9]{1,18}$ ]] && ((limit / 1024 < free)); then
            free=$((limit / 1024))
        fi
    done
    printf '%s' "$free"
}

# parallel_jobs: how many compilers may run at once: one for each core and each free gigabyte,
# which a source file that includes Qt and its tests can take. CMake's own variable overrules.
parallel_jobs() {
    local jobs by_memory
    if [[ ${CMAKE_BUILD_PARALLEL_LEVEL-} =~ ^[1-9][0-9]*$ ]]; then
        printf '%s' "$CMAKE_BUILD_PARALLEL_LEVEL"
        return
    fi
    jobs=$(nproc)
    by_memory=$(($(memory_for_builds) / 1024 / 1024))
    ((by_memory < jobs)) && jobs=$by_memory
    ((jobs < 1)) && jobs=1
    printf '%s' "$jobs"
}

# needs_configuring FOLDER: whether CMake has to run first. After that Ninja runs it whenever a
# CMakeLists.txt changes, but it does not know of the presets.
needs_configuring() {
    [ ! -e "$1/build.ninja" ] || [ ! -e "$1/.configured" ] ||
        [ "$project_root/CMakePresets.json" -nt "$1/.configured" ] ||
        was_moved "$1"
}

# was_moved FOLDER: whether the build folder was made for a checkout at another place.
was_moved() {
    [ -e "$1/CMakeCache.txt" ] &&
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$project_root" "$1/CMakeCache.txt"
}

# configure PRESET FOLDER: runs CMake; what it says is shown only where it is of interest.
configure() {
    local preset=$1 folder=$2 options=() log=$2/configure.log status
    was_moved "$folder" && options=(--fresh)
    mkdir -p "$folder" && rm -f "$folder/.configured" || return
    say "Configuring ($preset) ..."
    (cd "$project_root" && cmake --preset "$preset" "${options[@]}") >"$log" 2>&1 </dev/null
    status=$?
    if [ $status -ne 0 ] || grep -q 'CMake .*Warning' "$log"; then
        cat "$log" >&2
    fi
    [ $status -eq 0 ] && touch "$folder/.configured"
}

# build PRESET TARGET: brings TARGET of build/PRESET up to date: "product" is the program, "installation"
# all that a package has, "all" the tests as well. Two of these at once would spoil each other's files, so
# the second waits.
build() {
    local preset=$1 target=$2 folder=$project_root/build/$1 pending
    mkdir -p "$project_root/build" || return
    if ! exec 9>>"$folder.lock"; then
        say "The folder $project_root/build cannot be written; does it belong to another user?"
        return 1
    fi
    if command -v flock >/dev/null && ! flock -n 9; then
        say "Waiting for another build of $preset ..."
        flock 9
    fi
    if needs_configuring "$folder" || [ -n "$packages_were_installed" ]; then
        configure "$preset" "$folder" || {
            say "Configuring failed; the output is in build/$preset/configure.log, too."
            return 1
        }
    fi
    pending=$(cmake --build "$folder" --target "$target" -- -n 2>&1)
    if [ "$pending" != 'ninja: no work to do.' ]; then
        if ! (cd "$project_root" &&
            cmake --build --preset "$preset" --target "$target" --parallel "$(parallel_jobs)") >&2; then
            say 'The build failed.'
            return 1
        fi
    fi
    # Closed, or the program that starts now would hold the lock for as long as it runs.
    exec 9>&-
}
