#!/usr/bin/env bash
# Prints the size of the macOS layer against all of src/, and how many Apple functions,
# classes, methods, properties and constants the declarations in this folder declare
# (counted by clang from the headers themselves).
#
#   figures.sh [CLANG]
set -euo pipefail

clang=${1:-clang++}
declarations=$(cd "$(dirname "$0")" && pwd)
source_dir=$(cd "$declarations/../.." && pwd)

lines_in() {
    find "$@" -type f \( -name '*.h' -o -name '*.cpp' -o -name '*.mm' \) -print0 |
        xargs -0 cat | wc -l
}
echo "lines of code in src/:              $(lines_in "$source_dir/src")"
echo "  of which macOS-only:               $(lines_in "$source_dir/src/platform/mac")"

source "$declarations/mac_target_flags.sh"
flags=()
mac_target_flags "$clang" arm64 "$source_dir"

# One translation unit that includes every declaration header.
unit=$(find "$declarations" -name '*.h' -not -path '*/linux_host/*' -printf '%P\n' | sort |
       sed 's|.*|#include <&>|')

# A node's file is printed only when it changes, so the file is carried from line to line.
echo "$unit" |
    "$clang" "${flags[@]}" -x objective-c++ -fobjc-arc -fno-color-diagnostics \
        -Xclang -ast-dump - |
    awk -v folder="$declarations/" '
        {
            file = current
            if (match($0, /<[^ ,<>]+:[0-9]+:[0-9]+/)) {
                first = substr($0, RSTART + 1, RLENGTH - 1)
                if (first !~ /^(line|col):/) file = first
            }
            rest = $0
            while (match(rest, /[^ ,<>]+\.h:[0-9]+:[0-9]+/)) {
                current = substr(rest, RSTART, RLENGTH)
                rest = substr(rest, RSTART + RLENGTH)
            }
            sub(/:[0-9]+:[0-9]+$/, "", file)
            sub(/:[0-9]+:[0-9]+$/, "", current)
            if (index(file, folder) != 1 || $0 ~ / implicit /) next
            # The os_log helper is ours, not Apple API.
            if ($0 ~ /-FunctionDecl / && $0 !~ / os_log_declaration_check /) functions++
            else if ($0 ~ /-ObjCInterfaceDecl /) classes++
            else if ($0 ~ /-ObjCMethodDecl /) methods++
            else if ($0 ~ /-ObjCPropertyDecl /) properties++
            else if ($0 ~ /-ObjCProtocolDecl /) protocols++
            else if ($0 ~ /-VarDecl /) variables++
            else if ($0 ~ /-EnumConstantDecl /) enumerators++
        }
        END {
            printf "declared Apple functions:           %d\n", functions
            printf "declared classes:                   %d\n", classes
            printf "declared methods:                   %d (and %d properties)\n", methods, properties
            printf "declared protocols:                 %d\n", protocols
            printf "declared constants:                 %d (%d global, %d enumeration cases)\n",
                   variables + enumerators, variables, enumerators
        }'
