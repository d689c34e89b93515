# The Debian packages that each job needs, and their installation. Sourced by the scripts.

packages_build="cmake ninja-build g++ pkg-config qt6-base-dev qt6-svg-dev libsdl2-dev libsdl2-mixer-dev
  libxcb1-dev libgl-dev libegl-dev"
packages_runtime="libqt6svg6 libsdl2-mixer-2.0-0 fonts-liberation xdg-utils"
packages_desktop="xvfb openbox picom tint2 xdotool x11-utils imagemagick"
packages_test="x11-xserver-utils fonts-dejavu-core libgtest-dev libgmock-dev libatspi2.0-dev at-spi2-core dbus-daemon
  wmctrl xclip faketime"
packages_bench="libbenchmark-dev dbus-daemon"
packages_check="clang-format-14 clang-tidy-14"
packages_package="dpkg-dev file"
packages_package_test="lintian appstream desktop-file-utils man-db"
packages_fuzz="clang-14 libclang-rt-14-dev"

# need_packages NAME...: installs what is missing. Where it may not, it names the one command.
need_packages() {
  local missing=() name
  for name in "$@"; do
    dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null && { sudo -n true 2>/dev/null || [ -t 0 ]; }; then
      as_root=(sudo)
    else
      echo "These packages are missing, and this user may not install them. Please run:" >&2
      echo "  apt-get install --no-install-recommends ${missing[*]}" >&2
      return 1
    fi
  fi
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -qq &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
