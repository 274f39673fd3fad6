#!/usr/bin/env bash
# Compiles the macOS layer with clang, syntax only, against the declarations in this folder,
# for one Mac target: arm64 (BOOL is bool) or x86_64 (BOOL is signed char).
#
#   syntax_check.sh CLANG ARCH SOURCE_DIR layer     every .mm, .cpp and .h of the macOS layer
#   syntax_check.sh CLANG ARCH SOURCE_DIR misuses   every file in misuses/ must be rejected
#
# Files are found when the check runs, so a new file is checked without any list to update.
set -uo pipefail

clang=$1
arch=$2
source_dir=$3
mode=$4
declarations="$source_dir/tests/mac_declarations"
# The macOS layer: the platform's implementation, and in its folders the agent's entry point
# and the Settings app's AppKit renderer.
layers=("$source_dir/src/platform/mac")

case "$arch" in
    arm64) bool_is_bool=1 ;;
    x86_64) bool_is_bool=0 ;;
    *) echo "unknown architecture: $arch" >&2; exit 2 ;;
esac

source "$declarations/mac_target_flags.sh"
flags=()
mac_target_flags "$clang" "$arch" "$source_dir"

objc_flags=(-x objective-c++ -fobjc-arc)

# Compiles one file (a header through a one-line translation unit that includes it).
compile() {
    local file=$1
    shift
    case "$file" in
        *.mm) "$clang" "${flags[@]}" "${objc_flags[@]}" "$@" "$file" ;;
        *.cpp) "$clang" "${flags[@]}" -x c++ "$@" "$file" ;;
        *.h)
            local language=(-x c++)
            grep -qE '^\s*#\s*import|^\s*@(interface|protocol|class|implementation)' "$file" &&
                language=("${objc_flags[@]}")
            echo "#include \"${file#"$source_dir/src/"}\"" |
                "$clang" "${flags[@]}" "${language[@]}" "$@" - ;;
    esac
}

check_layer() {
    local failed=0 count=0
    # BOOL must be the type this target really uses, or the second pass proves nothing.
    if ! compile "$declarations/probes/bool_type.mm" -DEXPECTED_BOOL_IS_BOOL=$bool_is_bool; then
        echo "FAILED: BOOL is not the $arch type" >&2
        failed=1
    fi
    while IFS= read -r -d '' file; do
        count=$((count + 1))
        if ! compile "$file"; then
            echo "FAILED: ${file#"$source_dir/"} ($arch)" >&2
            failed=1
        fi
    done < <(find "${layers[@]}" -type f \( -name '*.mm' -o -name '*.cpp' -o -name '*.h' \) -print0 |
             sort -z)
    echo "checked $count files of the macOS layer for $arch"
    [[ $count -gt 0 ]] || failed=1
    return $failed
}

# Each misuse names, on a line "// expect: ...", the error clang must give for it.
check_misuses() {
    local failed=0 count=0
    while IFS= read -r -d '' file; do
        count=$((count + 1))
        local expected output
        expected=$(sed -n 's|^// expect: ||p' "$file" | head -n 1)
        if [[ -z "$expected" ]]; then
            echo "FAILED: ${file##*/} does not say which error it expects" >&2
            failed=1
            continue
        fi
        if output=$(compile "$file" 2>&1); then
            echo "FAILED: ${file##*/} was accepted ($arch)" >&2
            failed=1
        elif ! grep -qF -- "$expected" <<<"$output"; then
            echo "FAILED: ${file##*/} was rejected for another reason ($arch):" >&2
            echo "$output" >&2
            failed=1
        else
            echo "rejected as expected: ${file##*/}"
        fi
    done < <(find "$declarations/misuses" -type f \( -name '*.mm' -o -name '*.cpp' \) -print0 |
             sort -z)
    [[ $count -gt 0 ]] || failed=1
    return $failed
}

case "$mode" in
    layer) check_layer ;;
    misuses) check_misuses ;;
    *) echo "unknown mode: $mode" >&2; exit 2 ;;
esac
