# The two Info.plist entries Sparkle reads: the appcast's address and the EdDSA public key
# updates are signed with. Both are absent unless given at configure time; without a key the
# agent logs that updates are off and never starts the updater.

# Escapes the three characters that would break the property list's XML.
function(vistrel_plist_escape out text)
  string(REPLACE "&" "&amp;" text "${text}")
  string(REPLACE "<" "&lt;" text "${text}")
  string(REPLACE ">" "&gt;" text "${text}")
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

# Sets `out` to the <key>/<string> lines for the non-empty values, ready to stand inside the
# Info.plist's top-level dictionary.
function(vistrel_update_plist_entries out feed_url public_key)
  set(entries "")
  if(NOT "${feed_url}" STREQUAL "")
    vistrel_plist_escape(feed_url "${feed_url}")
    string(APPEND entries "\t<key>SUFeedURL</key>\n\t<string>${feed_url}</string>\n")
  endif()
  if(NOT "${public_key}" STREQUAL "")
    string(LENGTH "${public_key}" key_length)
    if(NOT key_length EQUAL 44)
      message(WARNING "VISTREL_SPARKLE_PUBLIC_KEY has ${key_length} characters, not the 44 of a "
                      "base64 Ed25519 key: the app will keep updates off")
    endif()
    vistrel_plist_escape(public_key "${public_key}")
    string(APPEND entries "\t<key>SUPublicEDKey</key>\n\t<string>${public_key}</string>\n")
  endif()
  set(${out} "${entries}" PARENT_SCOPE)
endfunction()
