#!/usr/bin/env bash
# Installs what the build needs (Debian packages), builds, and runs either the example or the
# tests. Usage: tools/setup.sh example | test
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
build="$here/build"
what=${1:-example}

packages=(cmake ninja-build g++ pkg-config libcairo2-dev fonts-wqy-microhei libgtest-dev libgmock-dev
          libbenchmark-dev python3 python3-ezdxf netpbm)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq "${missing[@]}" >/dev/null
fi

cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null

case "$what" in
  example)
    # Just what the example runs: the console and the module.
    cmake --build "$build" -j"$(nproc)" --target adscon Vrn2
    out="$build/example-run"
    mkdir -p "$out"
    # Result files are appended to; start from none so the run shows just its own results.
    rm -f "$out/wair002.txt" "$out/gscal.txt"
    "$build/adscon" --cwd "$out" --reg 'SysPath=C:\Vornex\' --render "$out/example.png" \
      "$here/examples/first-steps.lsp" "$here/examples/air-calculations.lsp"
    for f in gscal.txt wair002.txt; do
      printf '\n\n===== %s =====\n' "$out/$f"
      cat "$out/$f"
    done
    printf '\n\n===== picture of the drawing: %s\n' "$out/example.png"
    ;;
  test)
    cmake --build "$build" -j"$(nproc)"
    cd "$build" && ctest --output-on-failure -j"$(nproc)"
    ;;
  *)
    echo "usage: tools/setup.sh example | test" >&2
    exit 2
    ;;
esac
