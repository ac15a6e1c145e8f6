# Installs the Debian packages a command needs, checking first and installing
# only what is missing, without questions. Sourced by the other scripts.

ensure_packages() {
  local missing=()
  local pkg
  for pkg in "$@"; do
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
      missing+=("$pkg")
    fi
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# What building the program needs.
BUILD_PACKAGES=(cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libsqlite3-dev libxcb1-dev)
