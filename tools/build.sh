# shellcheck shell=bash
# Functions with which ./run, ./measure, ./package and ./check build.

# Use a compiler cache if there is one.
if command -v ccache >/dev/null; then
  export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

# Ends the script if an earlier build belongs to another user, for example after a run with sudo.
require_own_build() {
  local locked
  locked=$(find build -maxdepth 2 -type d ! -writable -print -quit 2>/dev/null) || true
  [[ -z $locked ]] && return
  echo "The directory $PWD/$locked belongs to $(stat -c %U "$locked"), so nothing can be built in it." >&2
  echo "Remove it with: sudo rm -r $(printf %q "$PWD/build")" >&2
  exit 1
}

# Ninja 1.11 cannot parse a path with a quote or an ampersand in the compiler's dependency output, and would build
# everything each time.
generator() {
  if [[ $PWD == *[\'\&]* ]]; then echo "Unix Makefiles"; else echo Ninja; fi
}

# build PRESET [OPTION...]: builds in build/PRESET. The options are passed to cmake --build.
build() {
  require_own_build
  cmake --preset "$1" -G "$(generator)" >/dev/null &&
    cmake --build "build/$1" --parallel "$(nproc)" "${@:2}"
}

# Builds the Debian package of a build directory. All file times are that of the newest changelog entry. All files are
# readable by everybody, even if the builder's umask is stricter.
pack() (
  umask 022
  rm -rf "$1/package"
  SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/debian/changelog -S Timestamp) \
    cpack --config "$1/CPackConfig.cmake"
)
