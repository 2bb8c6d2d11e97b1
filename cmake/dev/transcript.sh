# shellcheck shell=bash disable=SC2154 # ./dev sets checkout
# Plays the commands of a guide and compares what they print with what the guide says. Sourced by ./dev.

# play_guide PAGE FOLDER: plays, in the folder, the commands behind "$ " in the page's console blocks
# and compares their output; the lines of its sh blocks are only run. All is one session.
play_guide() {
    local page=$1 folder=$2
    rm -rf "$folder"
    mkdir -p "$folder"
    ln -s "$checkout/build" "$folder/build" # as a page names it that begins in a checkout
    awk -v expected="$folder/expected" '
        /^```/ { block = substr($0, 4); next }
        block == "sh" { print $0 " >>\"$log\" 2>&1" }
        block == "console" { print >expected }
        block == "console" && /^\$ / {
            command = substr($0, 3)
            quoted = command
            gsub(/\047/, "\047\\\047\047", quoted)
            print "printf \047$ %s\\n\047 \047" quoted "\047"
            print "{ " command "; } 2>&1 || echo \"(exit code $?)\" >>\"$log\""
        }' "$page" >"$folder/commands"
    [ -s "$folder/expected" ] || fail "$page has no commands to play"
    (
        # shellcheck disable=SC2034 # the commands write to it
        log=$(realpath "$folder")/log
        cd "$folder"
        set -e
        # shellcheck source=/dev/null
        . ./commands
    ) >"$folder/printed" || {
        tail -n 30 "$folder/log" >&2
        fail "a command of $page fails; the log is $folder/log"
    }
    diff -u --label "$page" --label printed "$folder/expected" "$folder/printed" ||
        fail "the commands of $page print something else"
    say "$(grep -c '^\$ ' "$folder/expected") commands of $page print what it says"
}
