# shellcheck shell=bash
# How ./run, ./measure, ./package and ./check build.

# A compiler cache is used where there is one.
if command -v ccache >/dev/null; then
  export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

# Ends the script where an earlier build belongs to somebody else, as after a run with sudo.
require_own_build() {
  local locked
  locked=$(find build -maxdepth 2 -type d ! -writable -print -quit 2>/dev/null) || true
  [[ -z $locked ]] && return
  echo "The folder $PWD/$locked belongs to $(stat -c %U "$locked"), so nothing can be built in it." >&2
  echo "Remove it with: sudo rm -r $(printf %q "$PWD/build")" >&2
  exit 1
}

# Ninja 1.11 cannot read such names in what the compiler says of its files, and would build all of it each time.
generator() {
  if [[ $PWD == *[\'\&]* ]]; then echo "Unix Makefiles"; else echo Ninja; fi
}

# build PRESET [OPTION...]: builds in build/PRESET; the options are those of cmake --build.
build() {
  require_own_build
  cmake --preset "$1" -G "$(generator)" >/dev/null &&
    cmake --build "build/$1" --parallel "$(nproc)" "${@:2}"
}

# Makes the Debian package of a build. The times in it are that of the newest entry of its changelog, and everybody
# can read what is in it, also where the builder's own files are private.
pack() (
  umask 022
  rm -rf "$1/package"
  SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/debian/changelog -S Timestamp) \
    cpack --config "$1/CPackConfig.cmake"
)
