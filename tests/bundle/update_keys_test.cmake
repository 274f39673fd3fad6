# Run with cmake -DMODULE_DIR=... -P: checks the Info.plist entries made for the updater.
include(${MODULE_DIR}/VistrelUpdateKeys.cmake)

function(expect_equal actual expected what)
  if(NOT "${actual}" STREQUAL "${expected}")
    message(FATAL_ERROR "${what}:\n  expected [${expected}]\n  got      [${actual}]")
  endif()
endfunction()

vistrel_update_plist_entries(none "" "")
expect_equal("${none}" "" "no feed and no key give no entries")

set(key "pfIShU4dEXqPd5ObYNfDBiQWcXozk7estwzTnF9BamQ=")
vistrel_update_plist_entries(both "https://example.com/appcast.xml?a=1&b=2" "${key}")
expect_equal("${both}"
  "\t<key>SUFeedURL</key>\n\t<string>https://example.com/appcast.xml?a=1&amp;b=2</string>\n\t<key>SUPublicEDKey</key>\n\t<string>${key}</string>\n"
  "a feed and a key give both entries, the ampersand escaped")

vistrel_update_plist_entries(key_only "" "${key}")
expect_equal("${key_only}" "\t<key>SUPublicEDKey</key>\n\t<string>${key}</string>\n"
  "a key alone gives only the key")
