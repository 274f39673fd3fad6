#!/usr/bin/env bash
# make_dev_identity.sh makes a certificate codesign accepts, in a file the keychain can import.
set -euo pipefail
root="$1"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

"$root/tools/mac/make_dev_identity.sh" --files "$work"

usage="$(openssl x509 -in "$work/identity.pem" -noout -ext extendedKeyUsage)"
grep -q "Code Signing" <<<"$usage" || { echo "not a code-signing certificate: $usage"; exit 1; }
subject="$(openssl x509 -in "$work/identity.pem" -noout -subject)"
grep -q "Vistrel Development" <<<"$subject" || { echo "wrong name: $subject"; exit 1; }

# The macOS keychain cannot read PKCS#12 files encrypted with AES, OpenSSL 3's default.
legacy=()
if openssl version | grep -q "^OpenSSL 3"; then
  legacy=(-legacy)
fi
info="$(openssl pkcs12 "${legacy[@]}" -in "$work/identity.p12" -passin pass:vistrel -info \
  -noout 2>&1)"
if grep -qi "aes" <<<"$info"; then
  echo "the identity file is AES-encrypted, which the keychain refuses:"; echo "$info"; exit 1
fi
