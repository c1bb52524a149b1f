# shellcheck shell=bash
# The Debian packages that ./run, ./measure and ./check need, and a function to install them.

packages_to_run=(
  build-essential    # compiler and linker
  cmake              # build
  ninja-build        # build
  qt6-base-dev       # windows and printing, with the plugins for X11 and offscreen
  libqt6svg6         # pictures: the plugin that loads them
  qt6-multimedia-dev # videos
  qt6-tools-dev      # translations: the CMake files of Qt Linguist
  qt6-l10n-tools     # translations: lrelease, and lupdate for the test that none is missing
  qt6-wayland        # windows on a Wayland desktop
  fonts-dejavu-core  # a font for the windows, where no other is installed
)

packages_to_measure=(
  "${packages_to_run[@]}"
  libgtest-dev       # tests
  libbenchmark-dev   # benchmarks
  valgrind           # instruction counts of the benchmarks
  python3            # the page of measurements, the tests of the pictures and of accessibility
)

# shellcheck disable=SC2034 # used by ./check
packages_to_check=(
  "${packages_to_measure[@]}"
  ccache             # compiles again only what has changed
  python3-pyqt6.qtsvg python3-fonttools libharfbuzz-bin # the tool that draws the caption pictures
  fonts-noto-core    # Urdu captions, and the default font that the tests of the windows measure
  fonts-hosny-amiri  # Arabic captions
  python3-pyatspi    # accessibility test
  at-spi2-core       # accessibility test
  dbus-daemon        # accessibility test: its message bus
  xvfb               # accessibility test: a virtual display
  openbox            # accessibility test: a window manager
  clang-14           # a second compiler
  libclang-rt-14-dev # sanitizers
  clang-format-14    # formatting
  clang-tidy-14      # static analysis
  desktop-file-utils # validator of the desktop entry
  appstream          # validator of the metainfo file
  shared-mime-info   # registers the type of the case files
  libxml2-utils      # validator of its XML file
  mandoc             # validator of the manual page
  lintian            # validator of the Debian package
  poppler-utils      # the text of the PDF documents
)

# shellcheck disable=SC2034 # used by tools/documents
packages_to_set_documents=(
  chromium           # typesetting
  python3-markdown   # reads the sources
  fonts-noto-core    # Latin and Urdu
  fonts-hosny-amiri  # Arabic
)

# Installs the packages that are missing. It updates apt's lists only if the installation fails without.
install_missing() {
  local missing=() apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
  for package in "$@"; do
    [[ $(dpkg-query -Wf '${db:Status-Status}' "$package" 2>/dev/null) == installed* ]] || missing+=("$package")
  done
  [[ ${#missing[@]} -gt 0 ]] || return 0

  echo "Installing ${missing[*]}"
  if [[ $EUID -ne 0 ]]; then
    # Nobody can type a password unless this is a terminal.
    local sudo=(sudo -n)
    [[ -t 0 && -z ${CI:-} ]] && sudo=(sudo)
    if ! "${sudo[@]}" true 2>/dev/null; then
      echo "Installing packages needs root or sudo, and neither is available." >&2
      exit 1
    fi
    apt=("${sudo[@]}" "${apt[@]}")
  fi
  # A package that could only be installed by removing another one is an error.
  local errors install=(install -y --no-install-recommends --no-remove "${missing[@]}")
  errors=$("${apt[@]}" "${install[@]}" 2>&1 >/dev/null </dev/null) && return
  "${apt[@]}" update </dev/null && "${apt[@]}" "${install[@]}" >/dev/null </dev/null && return
  echo "$errors" >&2
  echo "These packages could not be installed: ${missing[*]}" >&2
  exit 1
}
