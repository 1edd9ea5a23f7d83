#!/usr/bin/env bash
# What the system's journal is told of a job: the bytes that arrive at /dev/log.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

# The socket of the system is not used: a namespace of our own has a /dev of its own, in which a
# program of ours listens.
listen_and_run='
    dev=$1 journal=$2
    shift 2
    mkdir -p "$dev" && mount -t tmpfs tmpfs "$dev" || exit 70
    for node in null zero full random urandom; do
        : >"$dev/$node" && mount --bind "/dev/$node" "$dev/$node" || exit 70
    done
    mkdir "$dev/shm" && mount --rbind /dev/shm "$dev/shm" || exit 70
    ln -s /proc/self/fd "$dev/fd"
    mount --move "$dev" /dev || exit 70
    python3 -c "
import socket
log = socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM)
log.bind(\"/dev/log\")
print(\"listening\", flush=True)
while True:
    print(log.recv(8192).decode().replace(chr(10), \"<LF>\"), flush=True)
" >"$journal" &
    listener=$!
    for _ in $(seq 200); do
        [ -s "$journal" ] && break
        sleep 0.05
    done
    "$@"
    status=$?
    sleep 0.2
    kill "$listener"
    exit $status'

# print_with_policy LINES ARGUMENT...: prints to a file where the policy says LINES for everybody.
print_with_policy() {
    local policy=$work/policy
    mkdir -p "$policy"
    chmod 755 "$work" "$policy"
    printf '[all]\n%b' "$1" >"$policy/10.conf"
    shift
    timeout "$patience" unshare -m --propagation private bash -c "$listen_and_run" bash \
        "$work/dev" "$work/journal" env "CORVANA_PRINT_POLICY=$policy" "$program" \
        --bundle-root "$bundles" --no-dialog "${printer[@]}" --output "$output" "$@" \
        "$document" >"$work/out" 2>"$work/err" </dev/null
    status=$?
}

oneLineArrivesForAJob() {
    print_with_policy 'journal = yes\n' -n 2 -t 'Secret title'
    expect_status 0
    expect_equal "$(wc -l <"$work/journal")" 2 # with that of the listener
    local line
    line=$(sed -n 2p "$work/journal")
    # The facility "user", for information.
    [[ $line =~ ^'<14>'.*' corvana-print['[0-9]+']: print user="'.*'" printer="corvana-cl5" pages=3 sheets=6 color=yes outcome=printed'$ ]] ||
        fail "unexpected: $line"
}

aTitleIsOnePieceOfThatLine() {
    print_with_policy 'journal = yes\njournal-title = yes\n' -t $'%s%n "a"\nuser="x" \xe6\x97\xa5'
    expect_status 0
    expect_equal "$(wc -l <"$work/journal")" 2
    expect_equal "$(sed -n '2s/.* outcome=printed //p' "$work/journal")" \
        "title=\"%s%n 'a'<U+000A>user='x' 日\""
}

withoutTheAdministratorsWishNothingArrives() {
    print_with_policy '' -t x
    expect_status 0
    expect_equal "$(cat "$work/journal")" listening
}

unshare -m true 2>/dev/null || {
    echo 'no file system can be mounted here; nothing was tried'
    exit 77
}
run_tests
