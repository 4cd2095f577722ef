# Shared steps of scripts/run and scripts/test: install what is missing, configure, build.

PACKAGES=(cmake g++ make pkg-config libsqlite3-dev libfreexl-dev qt6-base-dev libgl-dev
          libgtest-dev libbenchmark-dev xvfb xauth fonts-dejavu-core clang-format
          qt6-charts-dev libqt6opengl6-dev qt6-svg-dev poppler-utils)

root_dir="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

install_missing_packages() {
  local missing=()
  for package in "${PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get install -y --no-install-recommends "${missing[@]}" ||
    { $sudo apt-get update && $sudo apt-get install -y --no-install-recommends "${missing[@]}"; }
}

# configure_and_build BUILD_DIR [TARGET] [CMAKE OPTIONS...]
configure_and_build() {
  local dir="$root_dir/$1" target="$2"
  shift 2
  cmake -S "$root_dir" -B "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
  cmake --build "$dir" --parallel "$(nproc)" ${target:+--target "$target"}
}

# Fails, naming the files, when a C++ file differs from what clang-format makes of it.
check_formatting() {
  local unformatted
  unformatted=$(cd "$root_dir" && git ls-files '*.cpp' '*.h' |
    xargs clang-format --dry-run --Werror 2>&1 | grep -o '^[^:]*\.\(cpp\|h\)' | sort -u || true)
  if [ -n "$unformatted" ]; then
    echo "These files are not formatted (run: cmake --build build --target format):"
    echo "$unformatted"
    return 1
  fi
}
