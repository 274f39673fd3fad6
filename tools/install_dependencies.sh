#!/usr/bin/env bash
# Installs what the build needs on Debian when it is missing (as root, with apt-get).
# On macOS it only says what to install with Homebrew; the system frameworks come with Xcode.
set -euo pipefail

packages=(cmake make g++ pkg-config googletest libgtest-dev libgmock-dev libbenchmark-dev
          nlohmann-json3-dev libcairo2-dev libfreetype-dev libzip-dev libcurl4-openssl-dev
          libcpp-httplib-dev zlib1g-dev clang clang-format)

if [[ "$(uname)" == "Darwin" ]]; then
  for formula in cmake pkg-config googletest google-benchmark nlohmann-json cairo freetype libzip \
                 cpp-httplib; do
    brew list "$formula" >/dev/null 2>&1 || echo "missing: brew install $formula"
  done
  exit 0
fi

command -v dpkg-query >/dev/null 2>&1 || exit 0
missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
  [[ "$status" == "install ok installed" ]] || missing+=("$package")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

if [[ $(id -u) -ne 0 ]]; then
  echo "missing packages; install them with: sudo apt-get install -y ${missing[*]}" >&2
  exit 1
fi
echo "installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
