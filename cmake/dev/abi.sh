# shellcheck shell=bash
# Whether a skill that was built before still fits the libraries: sizes, fields, virtual functions and
# exported functions beside those of a kept baseline. Sourced by ./dev; docs/compatibility.md says what
# may change.

# describe_interface LIBRARY FILE: what the public headers show of it, without paths of this machine.
describe_interface() {
    abidw --headers-dir include --headers-dir platform/corvane-utils/include --exported-interfaces-only \
        --drop-undefined-syms --no-elf-needed --no-corpus-path --no-comp-dir-path --no-show-locs \
        --no-parameter-names --no-write-default-sizes --type-id-style hash --out-file "$2" "$1"
}

run_abi() {
    local name place=build/abi kept status=0
    if [ $# -gt 0 ] && [ "$*" != --renew ]; then fail "abi takes --renew and nothing else"; fi
    build abi
    for name in CorvaneUtils CorvaneWorkbenchPlugin; do
        kept=tests/abi/$name.abi.xz
        describe_interface "$place/bin/lib$name.so" "$place/$name.abi"
        if [ $# -gt 0 ]; then
            xz --compress -9 --extreme --stdout "$place/$name.abi" >"$kept"
            say "Renewed $kept"
            continue
        fi
        say "Comparing $name with its baseline"
        xz --decompress --stdout "$kept" >"$place/$name.baseline.abi"
        # Both sides are descriptions of the same kind: a library itself would show more than its baseline.
        abidiff --no-added-syms "$place/$name.baseline.abi" "$place/$name.abi" || status=1
    done
    [ $status -eq 0 ] || fail "a skill that was built against the baseline would not fit (docs/compatibility.md).
If that is meant, raise the version as the page says and run: ./dev abi --renew"
}
