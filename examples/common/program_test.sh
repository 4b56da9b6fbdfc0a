# Sourced by the tests of programs that turn a file into pictures: PROGRAM FILE, and the pictures' names behind that of the file.
set -u
program=$1 carried=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

# The width and height of a PNG, or nothing if it is none.
png_size() {
    [ "$(od -An -tx1 -N8 "$1" 2>/dev/null | tr -d ' ')" = 89504e470d0a1a0a ] || return
    od -An -tu1 -j16 -N8 "$1" | awk '{print (($1*256+$2)*256+$3)*256+$4, (($5*256+$6)*256+$7)*256+$8}'
}

# good NAME WORDS [SUFFIX]: a file (standard input) that has to give the pictures, and an output with these words.
good() {
    local file=good${3:-$suffix} picture
    cat >"$scratch/$file"
    if output=$("$program" "$scratch/$file" "$scratch/pictures" 2>&1); then
        [[ $output == *"$2"* ]] || fail "$1: no '$2' in: $output"
        for picture in "${pictures[@]}"; do
            [ -n "$(png_size "$scratch/pictures/good-$picture.png")" ] || fail "$1: no $picture"
        done
    else
        fail "$1: $output"
    fi
    rm -rf "$scratch/pictures"
}

# bad LINE WORDS [SUFFIX]: a file (standard input, with \n for the ends of lines) that has to be refused with these words and
# the line.
bad() {
    local file=bad${3:-$suffix}
    printf '%b' "$(cat)" >"$scratch/$file"
    output=$("$program" "$scratch/$file" "$scratch/pictures" 2>&1)
    status=$?
    [ $status = 1 ] || fail "'$2': exit status $status"
    [[ $output == *"$file:$1: "*"$2"* ]] || fail "no '$file:$1: ...$2' in: $output"
    [ "$(echo "$output" | wc -l)" = 1 ] || fail "'$2': more than one line: $output"
    [ ! -e "$scratch/pictures" ] || fail "'$2': a picture was written"
}

# What no program can read or write.
finish() {
    local none
    for none in "$scratch/absent$suffix" "$scratch" /dev/null; do
        output=$("$program" "$none" "$scratch/pictures" 2>&1)
        [ $? = 1 ] && [[ $output == "$(basename "$program"): $none: "* ]] || fail "$none: $output"
    done
    output=$("$program" "$carried" /dev/full/pictures 2>&1) && fail "wrote pictures into a device"
    exit $((failures > 0))
}
