#!/usr/bin/env bash
# PDF documents that are protected, from the command line: their passwords come from a file or from
# the terminal, and from nowhere else.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

password='open sésame'

# protect USER OWNER OPTION...: the sample document from now on.
protect() {
    document=$work/protected.pdf
    qpdf --allow-weak-crypto --encrypt "$@" -- "$sample" "$document" ||
        skip "qpdf cannot protect a document"
}
# in_file MODE: the password in a file, which is named in $secret.
in_file() {
    secret=$work/secret
    printf '%s\n' "$password" >"$secret"
    chmod "$1" "$secret"
}
# without_terminal ARGUMENT...: as print, where nobody can be asked.
without_terminal() {
    environment+=(setsid --wait)
    print "$@"
}
# expect_as_unprotected: what was printed is what the sample itself gives, but for dates.
expect_as_unprotected() {
    expect_printed
    expect_equal "$(grep -ac '^%%Page:' "$output")" 3
}
# expect_no_copy: nothing of the document is left.
expect_no_copy() { expect_equal "$(find "$TMPDIR" -name document)" ''; }

own_temporary() {
    mkdir "$work/tmp"
    export TMPDIR=$work/tmp
}

aProtectedDocumentIsRefusedWhereNobodyCanBeAsked() {
    protect "$password" owner 256
    echo 'printed earlier' >"$output"
    without_terminal
    expect_status 1
    expect_said 'is protected' '--document-password-file'
    expect_nothing_new
}

thePasswordComesFromAFile() {
    own_temporary
    local strength
    for strength in 40 128 256; do
        [ "$strength" -eq 256 ] || password=sesame
        protect "$password" owner "$strength"
        in_file 600
        without_terminal --document-password-file "$secret"
        expect_as_unprotected
        expect_said 'is protected. The file that is printed to is not.'
        expect_no_copy
        password='open sésame'
    done
}

aPasswordThatOthersCanReadIsNotTaken() {
    protect "$password" owner 256
    in_file 640
    expect_refusal 'others than its owner may use the file' -- --document-password-file "$secret"
}

aWrongPasswordIsSaid() {
    protect other owner 256
    in_file 600
    expect_refusal 'the password that was given does not open it' -- \
        --document-password-file "$secret"
}

whatForbidsPrintingIsPrintedByItsOwnerOnly() {
    protect '' "$password" 256 --print=none
    environment+=(setsid --wait)
    expect_refusal 'does not allow printing' --
    environment=()
    in_file 600
    print --document-password-file "$secret"
    expect_as_unprotected
}

# The terminal of the program is another one than its input and output.
theTerminalAsksForIt() {
    protect "$password" owner 256
    python3 - "$program" --bundle-root "$bundles" --no-dialog "${printer[@]}" --output "$output" \
        "$document" "$password" >"$work/out" 2>"$work/err" <<'PYTHON'
import os, pty, sys
*command, password = sys.argv[1:]
process, terminal = pty.fork()
if process == 0:
    os.execv(command[0], command)
answers = [b"wrong", password.encode()]
seen = b""
shown = b""
while True:
    try:
        data = os.read(terminal, 4096)
    except OSError:
        break
    if not data:
        break
    seen += data
    shown += data
    if seen.endswith("”: ".encode()) and answers:
        os.write(terminal, answers.pop(0) + b"\n")
        seen = b""
sys.stdout.buffer.write(shown)
sys.exit(os.waitstatus_to_exitcode(os.waitpid(process, 0)[1]))
PYTHON
    status=$?
    expect_as_unprotected
    grep -qF 'Password of “protected.pdf”: ' "$work/out" || fail "nobody was asked"
    grep -qF 'That is not the password.' "$work/out" || fail "the wrong password was taken"
    ! grep -qF "$password" "$work/out" || fail "the password was shown"
}

run_tests
