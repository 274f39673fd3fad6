# Finds the libraries Vistrel builds with. A missing one stops configuration with the
# exact command that installs it.

if(APPLE)
  set(VISTREL_INSTALL_HINT "brew install")
else()
  set(VISTREL_INSTALL_HINT "sudo apt-get install -y")
endif()

function(vistrel_require found what debian_package brew_package)
  if(NOT ${found})
    if(APPLE)
      set(package ${brew_package})
    else()
      set(package ${debian_package})
    endif()
    message(FATAL_ERROR "${what} is missing. Install it with: ${VISTREL_INSTALL_HINT} ${package}")
  endif()
endfunction()

find_package(Threads REQUIRED)

find_package(nlohmann_json 3.10 QUIET)
vistrel_require(nlohmann_json_FOUND "nlohmann/json" nlohmann-json3-dev nlohmann-json)

# Compresses the application icon's pictures; macOS has it in its SDK.
find_package(ZLIB QUIET)
vistrel_require(ZLIB_FOUND "zlib" zlib1g-dev zlib)

# The tests, the simulator and the benchmarks; an app-only build needs none of them.
if(NOT VISTREL_APP_ONLY)
  find_package(GTest QUIET)
  vistrel_require(GTest_FOUND "GoogleTest" "googletest libgtest-dev libgmock-dev" googletest)

  if(VISTREL_BENCHMARKS)
    find_package(benchmark QUIET)
    vistrel_require(benchmark_FOUND "Google Benchmark" libbenchmark-dev google-benchmark)
  endif()

  find_package(PkgConfig QUIET)
  vistrel_require(PKG_CONFIG_FOUND "pkg-config" pkg-config pkg-config)
  pkg_check_modules(Cairo QUIET IMPORTED_TARGET cairo)
  vistrel_require(Cairo_FOUND "Cairo" libcairo2-dev cairo)
  pkg_check_modules(Freetype QUIET IMPORTED_TARGET freetype2)
  vistrel_require(Freetype_FOUND "FreeType" libfreetype-dev freetype)

  # The simulated desktop writes real zip archives and sends real HTTP requests; the tests
  # answer those requests with a small HTTP server of their own. On macOS the agent uses
  # ditto and URLSession instead, but the simulator and its tests build there too.
  pkg_check_modules(LibZip QUIET IMPORTED_TARGET libzip)
  vistrel_require(LibZip_FOUND "libzip" libzip-dev libzip)
  find_package(CURL QUIET)
  vistrel_require(CURL_FOUND "libcurl" libcurl4-openssl-dev curl)
  pkg_check_modules(CppHttplib QUIET IMPORTED_TARGET cpp-httplib)
  if(NOT CppHttplib_FOUND)
    find_path(CPP_HTTPLIB_INCLUDE_DIR httplib.h)
    if(CPP_HTTPLIB_INCLUDE_DIR)
      add_library(vistrel_httplib INTERFACE)
      target_include_directories(vistrel_httplib INTERFACE ${CPP_HTTPLIB_INCLUDE_DIR})
      set(CppHttplib_FOUND TRUE)
    endif()
  endif()
  vistrel_require(CppHttplib_FOUND "cpp-httplib" libcpp-httplib-dev cpp-httplib)
  if(TARGET PkgConfig::CppHttplib)
    add_library(vistrel_httplib INTERFACE)
    target_link_libraries(vistrel_httplib INTERFACE PkgConfig::CppHttplib)
  endif()
endif()
