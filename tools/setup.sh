#!/usr/bin/env bash
# Installs what the build needs (Debian packages), builds, and runs either the example or the
# tests. Usage: tools/setup.sh example | test
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
build="$here/build"
what=${1:-example}

packages=(cmake ninja-build g++ pkg-config libcairo2-dev fonts-wqy-microhei libgtest-dev libgmock-dev
          libbenchmark-dev libzip-dev python3 python3-ezdxf python3-docx netpbm)
"$here/tools/need_packages.sh" "${packages[@]}"

cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null

case "$what" in
  example)
    # Just what the examples run: the console and the module.
    cmake --build "$build" -j"$(nproc)" --target adscon Vrn2
    out="$build/example-run"
    rm -rf "$out" && mkdir -p "$out"
    con=("$build/adscon" --cwd "$out" --reg 'SysPath=C:\Vornex\')
    show() { printf '\n\n===== %s =====\n' "$1"; cat "$1"; }

    # Air: lettering and a room, supply air, a state point, a mixture; then a coil check.
    "${con[@]}" --render "$out/example.png" \
      "$here/examples/first-steps.lsp" "$here/examples/air-calculations.lsp"
    "${con[@]}" "$here/examples/coil-check.lsp"
    show "$out/gscal.txt"; show "$out/wair002.txt"; show "$out/sccal.txt"

    # The i-d chart with state points, a picked point, a mixture, the table of points and a coil
    # process; the calculation report 计算书.docx.
    "${con[@]}" --save "$out/id-chart.dxf" --render "$out/id-chart.png" "$here/examples/id-chart.lsp"
    show "$out/qres.txt"

    # A supply-air duct network of an office floor: traced, calculated, the main path recoloured.
    "${con[@]}" --drawing "$here/examples/office-supply.dxf" --save "$out/office-supply.dxf" \
      --render "$out/office-supply.png" "$here/examples/office-supply.lsp"
    show "$out/office-supply.ksl"

    # Pipes of a heating system: a traced run, collision marks, crossing breaks; and the grid.
    # The radiators' connection lengths are read from the current folder.
    /usr/bin/python3 "$here/examples/heating-system.py" "$out/heating-system-in.dxf"
    cp "$here/examples/_brklen.dat" "$out/"
    "${con[@]}" --drawing "$out/heating-system-in.dxf" --save "$out/heating-system.dxf" \
      --render "$out/heating-system.png" "$here/examples/heating-system.lsp"
    "${con[@]}" --save "$out/grid.dxf" --render "$out/grid.png" -e '(c:fzzbsc)'

    printf '\n\n===== drawings and their pictures in %s\n' "$out"
    ls "$out"/*.dxf "$out"/*.png
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
