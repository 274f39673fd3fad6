# Run with cmake -DSOURCE_DIR=... -P: both apps name in their Info.plist the icon file the Mac
# build draws and copies into their Resources (CFBundleIconFile "Vistrel" finds
# Resources/Vistrel.icns, the extension being optional).
set(icon_entry "\t<key>CFBundleIconFile</key>\n\t<string>Vistrel</string>\n")
foreach(plist src/platform/mac/Info.plist.in src/platform/mac/settings_app/Info.plist.in)
  file(READ ${SOURCE_DIR}/${plist} text)
  string(FIND "${text}" "${icon_entry}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${plist} does not name the icon file Vistrel")
  endif()
endforeach()

file(READ ${SOURCE_DIR}/src/platform/mac/CMakeLists.txt build)
if(NOT build MATCHES "set\\(VISTREL_ICON [^)]*/Vistrel\\.icns\\)")
  message(FATAL_ERROR "the Mac build does not draw Vistrel.icns")
endif()
if(NOT build MATCHES "set_source_files_properties\\(\\\${VISTREL_ICON} PROPERTIES[^)]*MACOSX_PACKAGE_LOCATION Resources")
  message(FATAL_ERROR "the icon does not go into the bundles' Resources")
endif()
foreach(app VistrelSettings Vistrel)
  if(NOT build MATCHES "add_executable\\(${app} MACOSX_BUNDLE [^)]*\\\${VISTREL_ICON}")
    message(FATAL_ERROR "${app}.app is built without the icon")
  endif()
endforeach()
