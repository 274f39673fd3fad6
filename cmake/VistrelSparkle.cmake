# Sparkle, the framework the Mac app updates itself with: one pinned release, downloaded at
# configure time and checked against its published SHA-256 before anything is unpacked.
#
# Sets VISTREL_SPARKLE_FRAMEWORK (the framework to link and embed) and VISTREL_SPARKLE_TOOLS
# (Sparkle's command-line tools, among them sign_update for the release script).
include(FetchContent)

set(VISTREL_SPARKLE_VERSION 2.6.3)
set(VISTREL_SPARKLE_SHA256 3c4edb9f1527e056a2a69d24e96c5585d5a0d49f8320796d4caa3a71ab2d9d40)

FetchContent_Declare(sparkle
  URL "https://github.com/sparkle-project/Sparkle/releases/download/${VISTREL_SPARKLE_VERSION}/Sparkle-${VISTREL_SPARKLE_VERSION}.tar.xz"
  URL_HASH SHA256=${VISTREL_SPARKLE_SHA256}
  DOWNLOAD_EXTRACT_TIMESTAMP TRUE)
# The release has no CMakeLists.txt, so this only downloads, checks and unpacks it (keeping
# the framework's symbolic links).
FetchContent_MakeAvailable(sparkle)

set(VISTREL_SPARKLE_FRAMEWORK "${sparkle_SOURCE_DIR}/Sparkle.framework")
set(VISTREL_SPARKLE_TOOLS "${sparkle_SOURCE_DIR}/bin")
if(NOT EXISTS "${VISTREL_SPARKLE_FRAMEWORK}/Versions/Current")
  message(FATAL_ERROR "Sparkle ${VISTREL_SPARKLE_VERSION} unpacked without Sparkle.framework "
                      "in ${sparkle_SOURCE_DIR}")
endif()
