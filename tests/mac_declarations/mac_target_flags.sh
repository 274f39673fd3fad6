# Sourced by the scripts in this folder. mac_target_flags CLANG ARCH SOURCE_DIR fills the
# array `flags` with what compiles for ARCH-apple-macos13.0, syntax only, against the
# declarations in this folder.

mac_deployment_target=13.0

mac_target_flags() {
    local clang=$1 arch=$2 source_dir=$3
    local declarations="$source_dir/tests/mac_declarations"
    flags=(-target "$arch-apple-macos$mac_deployment_target" -std=c++20 -fsyntax-only -fblocks
           -Wall -Wextra -Werror -fno-caret-diagnostics
           -isystem "$declarations" -I "$source_dir/src")
    if [[ "$(uname)" == "Linux" ]]; then
        # A Mac target does not set the macros the host C library expects, and Apple's
        # compiler defines nullability names the C library uses for its own attribute.
        flags+=(-nostdinc++ -D_GNU_SOURCE -U__nonnull -U__nullable -U__null_unspecified
                -isystem "$declarations/linux_host")
    fi
    # The C and C++ standard headers come from the host, where its own clang finds them.
    local dir
    while read -r dir; do
        flags+=(-isystem "$dir")
    done < <("$clang" -x c++ -std=c++20 -E -v - </dev/null 2>&1 |
             sed -n '/^#include <...> search starts here:/,/^End of search list./p' |
             sed -e '1d' -e '$d' -e 's/^ *//')
}
