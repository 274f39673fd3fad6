#!/usr/bin/env bash
# sign_app.sh signs every nested code bundle before the bundle that holds it.
set -euo pipefail
root="$1"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

app="$work/Vistrel.app"
sparkle="$app/Contents/Frameworks/Sparkle.framework/Versions/B"
mkdir -p "$sparkle/XPCServices/Installer.xpc" "$sparkle/XPCServices/Downloader.xpc" \
  "$sparkle/Updater.app" "$app/Contents/Helpers/Vistrel Settings.app" "$app/Contents/MacOS"
touch "$sparkle/Autoupdate"

actual="$("$root/tools/mac/sign_app.sh" --dry-run --identity Tester "$app")"
expected="codesign --force --sign Tester $sparkle/XPCServices/Installer.xpc
codesign --force --sign Tester --preserve-metadata=entitlements $sparkle/XPCServices/Downloader.xpc
codesign --force --sign Tester $sparkle/Autoupdate
codesign --force --sign Tester $sparkle/Updater.app
codesign --force --sign Tester $app/Contents/Frameworks/Sparkle.framework
codesign --force --sign Tester $app/Contents/Helpers/Vistrel Settings.app
codesign --force --sign Tester $app"
if [[ "$actual" != "$expected" ]]; then
  echo "development signing order differs:"; diff <(echo "$expected") <(echo "$actual"); exit 1
fi

release="$("$root/tools/mac/sign_app.sh" --dry-run --release --identity Tester "$app")"
if [[ "$(grep -c -- "--options runtime --timestamp" <<<"$release")" != 7 ]]; then
  echo "a release signature lacks the hardened runtime or the timestamp:"; echo "$release"; exit 1
fi
