# shellcheck shell=bash
# The Debian packages that ./run, ./measure and ./check need, and how they come onto the machine.

packages_to_run=(
  build-essential    # compiler and linker
  cmake              # build
  ninja-build        # build
  qt6-base-dev       # windows, with the plugins for X11 and for no display
  libqt6svg6         # pictures: the plugin that reads them
  qt6-multimedia-dev # the player of the two videos
  qt6-wayland        # windows on a Wayland desktop
  fonts-dejavu-core  # letters, where no other font is installed
)

packages_to_measure=(
  "${packages_to_run[@]}"
  libgtest-dev       # tests
  libbenchmark-dev   # benchmarks
  valgrind           # instruction counts of the benchmarks
  python3            # the tests of the pictures and of what a screen reader hears, the page of measurements
)

# shellcheck disable=SC2034 # used by ./check
packages_to_check=(
  "${packages_to_measure[@]}"
  ccache             # compiles again only what has changed
  python3-pyqt6.qtsvg python3-fonttools libharfbuzz-bin # the tool that draws the caption pictures
  fonts-noto-core    # Urdu captions, and the default font that the tests of the windows measure
  fonts-hosny-amiri  # Arabic captions
  python3-pyatspi    # what a screen reader hears
  at-spi2-core       # what a screen reader hears
  dbus-daemon        # the bus that it hears it on
  xvfb               # the screen that nobody sees
  openbox            # the windows on it
  clang-14           # second opinion on the core
  libclang-rt-14-dev # sanitizers
  clang-format-14    # layout
  clang-tidy-14      # habits
  desktop-file-utils # the entry in the desktop's menu
  appstream          # the description for software centres
  mandoc             # the manual page
  lintian            # the Debian package
  poppler-utils      # the text of the PDF documents
)

# shellcheck disable=SC2034 # used by tools/documents
packages_to_set_documents=(
  chromium           # typesetting
  python3-markdown   # reads the sources
  fonts-noto-core    # Latin and Urdu
  fonts-hosny-amiri  # Arabic
)

# Asks apt only when a package is missing, and renews apt's lists only when they are not enough.
install_missing() {
  local missing=() apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
  for package in "$@"; do
    [[ $(dpkg-query -Wf '${db:Status-Status}' "$package" 2>/dev/null) == installed* ]] || missing+=("$package")
  done
  [[ ${#missing[@]} -gt 0 ]] || return 0

  echo "Installing ${missing[*]}"
  if [[ $EUID -ne 0 ]]; then
    # Nobody is there to type a password unless this is a terminal.
    local sudo=(sudo -n)
    [[ -t 0 && -z ${CI:-} ]] && sudo=(sudo)
    if ! "${sudo[@]}" true 2>/dev/null; then
      echo "Installing packages needs root or sudo, and neither is at hand." >&2
      exit 1
    fi
    apt=("${sudo[@]}" "${apt[@]}")
  fi
  # What is there stays: a package that could only come in the place of another is an error.
  local errors install=(install -y --no-install-recommends --no-remove "${missing[@]}")
  errors=$("${apt[@]}" "${install[@]}" 2>&1 >/dev/null </dev/null) && return
  "${apt[@]}" update </dev/null && "${apt[@]}" "${install[@]}" >/dev/null </dev/null && return
  echo "$errors" >&2
  echo "These packages could not be installed: ${missing[*]}" >&2
  exit 1
}
