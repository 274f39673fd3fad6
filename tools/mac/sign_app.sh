#!/usr/bin/env bash
# Signs Vistrel.app from the inside out: Sparkle's helpers, Sparkle.framework, the Settings
# app, then the agent. Each signature seals what is inside it, so nothing may be signed after
# the bundle around it.
#
#   tools/mac/sign_app.sh [--identity NAME] [--release] [--dry-run] path/to/Vistrel.app
#
#   --identity NAME  the certificate to sign with. Defaults to "Vistrel Development", the
#                    self-signed identity tools/mac/make_dev_identity.sh makes once; a stable
#                    identity keeps the Accessibility grant across rebuilds, which an ad-hoc
#                    signature loses every time.
#   --release        hardened runtime and a secure timestamp, as notarization requires
#                    (use a Developer ID identity; tools/mac/release.sh passes it).
#   --dry-run        print the codesign commands instead of running them.
set -euo pipefail

readonly DEVELOPMENT_IDENTITY="Vistrel Development"
readonly SPARKLE_VERSION_DIR="Contents/Frameworks/Sparkle.framework/Versions/B"

identity=""
release=false
dry_run=false
app=""
while [[ $# -gt 0 ]]; do
  case "$1" in
    --identity) identity="$2"; shift 2 ;;
    --release) release=true; shift ;;
    --dry-run) dry_run=true; shift ;;
    -*) echo "sign_app.sh: unknown option $1" >&2; exit 2 ;;
    *) app="$1"; shift ;;
  esac
done
if [[ -z "$app" || ! -d "$app/Contents" ]]; then
  echo "usage: sign_app.sh [--identity NAME] [--release] [--dry-run] path/to/Vistrel.app" >&2
  exit 2
fi

# Without the development identity a local build still runs, signed ad hoc.
if [[ -z "$identity" ]]; then
  identity="$DEVELOPMENT_IDENTITY"
  if ! $dry_run && ! security find-identity -v -p codesigning | grep -qF "\"$identity\""; then
    echo "sign_app.sh: no \"$identity\" identity (make it once with" \
         "tools/mac/make_dev_identity.sh); signing ad hoc, so Accessibility must be granted" \
         "again after every build" >&2
    identity="-"
  fi
fi

options=(--force --sign "$identity")
if $release; then
  options+=(--options runtime --timestamp)
fi

sign() {
  if $dry_run; then
    echo "codesign ${options[*]} $*"
  else
    codesign "${options[@]}" "$@"
  fi
}

sign_if_present() {
  local path="$app/$1"
  shift
  if [[ -e "$path" ]]; then
    sign "$@" "$path"
  fi
}

# The downloader runs sandboxed: its entitlements must survive the new signature.
sign_if_present "$SPARKLE_VERSION_DIR/XPCServices/Installer.xpc"
sign_if_present "$SPARKLE_VERSION_DIR/XPCServices/Downloader.xpc" \
  --preserve-metadata=entitlements
sign_if_present "$SPARKLE_VERSION_DIR/Autoupdate"
sign_if_present "$SPARKLE_VERSION_DIR/Updater.app"
sign_if_present "Contents/Frameworks/Sparkle.framework"
sign_if_present "Contents/Helpers/Vistrel Settings.app"
sign "$app"
