#!/usr/bin/env bash
# Builds a release of Vistrel: the universal app with the update feed and key, signed with a
# Developer ID, notarized and stapled, then zipped as the update archive and signed for the
# feed with Sparkle's sign_update (its Ed25519 private key is read from your keychain, where
# Sparkle's generate_keys put it).
#
#   tools/mac/release.sh --identity "Developer ID Application: NAME (TEAM)" \
#       --notary-profile PROFILE --feed-url URL --public-key KEY
#
#   PROFILE  a notarytool keychain profile, made once with
#            xcrun notarytool store-credentials PROFILE --apple-id ... --team-id ...
#
# Prints the enclosure attributes of the feed's new item.
set -euo pipefail

identity=""
profile=""
feed_url=""
public_key=""
while [[ $# -gt 0 ]]; do
  case "$1" in
    --identity) identity="$2"; shift 2 ;;
    --notary-profile) profile="$2"; shift 2 ;;
    --feed-url) feed_url="$2"; shift 2 ;;
    --public-key) public_key="$2"; shift 2 ;;
    *) echo "release.sh: unknown argument $1" >&2; exit 2 ;;
  esac
done
if [[ -z "$identity" || -z "$profile" || -z "$feed_url" || -z "$public_key" ]]; then
  echo "usage: release.sh --identity NAME --notary-profile PROFILE --feed-url URL" \
       "--public-key KEY" >&2
  exit 2
fi

root="$(cd "$(dirname "$0")/../.." && pwd)"
build="$root/build-release"
app="$build/Vistrel.app"

cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release -DVISTREL_UNIVERSAL=ON \
  -DVISTREL_SPARKLE_FEED_URL="$feed_url" -DVISTREL_SPARKLE_PUBLIC_KEY="$public_key"
cmake --build "$build" --target Vistrel -j "$(sysctl -n hw.ncpu)"
"$root/tools/mac/sign_app.sh" --release --identity "$identity" "$app"
codesign --verify --deep --strict "$app"

version="$(/usr/libexec/PlistBuddy -c "Print :CFBundleShortVersionString" "$app/Contents/Info.plist")"
archive="$build/Vistrel-$version.zip"

# The notary service takes a zip; the ticket is then stapled to the app itself, so the
# update archive is made again from the stapled app.
ditto -c -k --keepParent "$app" "$build/notarize.zip"
xcrun notarytool submit "$build/notarize.zip" --keychain-profile "$profile" --wait
xcrun stapler staple "$app"
xcrun stapler validate "$app"
rm -f "$build/notarize.zip"

ditto -c -k --sequesterRsrc --keepParent "$app" "$archive"
echo "Update archive: $archive"
"$build/_deps/sparkle-src/bin/sign_update" "$archive"
