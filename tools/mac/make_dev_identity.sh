#!/usr/bin/env bash
# Makes the self-signed code-signing identity "Vistrel Development" once, in the login
# keychain, so that local builds keep one signature and with it the Accessibility grant.
#
#   tools/mac/make_dev_identity.sh              make it (asks for your login password once,
#                                               to trust the certificate for code signing)
#   tools/mac/make_dev_identity.sh --files DIR  only write the certificate and its key to DIR
set -euo pipefail

readonly NAME="Vistrel Development"
readonly VALID_DAYS=3650
# Only protects the file between the two commands that write and import it.
readonly TRANSFER_PASSWORD="vistrel"

write_identity() {
  local dir="$1"
  cat >"$dir/identity.cnf" <<CNF
[req]
distinguished_name = name
x509_extensions = code_signing
prompt = no
[name]
CN = $NAME
[code_signing]
basicConstraints = critical, CA:false
keyUsage = critical, digitalSignature
extendedKeyUsage = critical, codeSigning
CNF
  openssl req -x509 -newkey rsa:2048 -nodes -days "$VALID_DAYS" -config "$dir/identity.cnf" \
    -keyout "$dir/identity.key" -out "$dir/identity.pem" 2>/dev/null
  # The keychain reads only the older PKCS#12 ciphers, which OpenSSL 3 calls legacy. (The
  # odd expansion below keeps an empty array from tripping `set -u` in macOS's bash 3.2.)
  local legacy=()
  if openssl version | grep -q "^OpenSSL 3"; then
    legacy=(-legacy)
  fi
  openssl pkcs12 -export ${legacy[@]+"${legacy[@]}"} -inkey "$dir/identity.key" -in "$dir/identity.pem" \
    -name "$NAME" -passout "pass:$TRANSFER_PASSWORD" -out "$dir/identity.p12"
}

if [[ "${1:-}" == "--files" ]]; then
  mkdir -p "$2"
  write_identity "$2"
  exit 0
fi

if security find-identity -v -p codesigning | grep -qF "\"$NAME\""; then
  echo "\"$NAME\" is already in your keychain."
  exit 0
fi

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
write_identity "$work"
keychain="$HOME/Library/Keychains/login.keychain-db"
security import "$work/identity.p12" -k "$keychain" -P "$TRANSFER_PASSWORD" -T /usr/bin/codesign
security add-trusted-cert -r trustRoot -p codeSign -k "$keychain" "$work/identity.pem"
echo "Made \"$NAME\". tools/mac/sign_app.sh and make run sign with it from now on."
