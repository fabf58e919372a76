#!/usr/bin/env bash
# Makes the fuzzers' seed corpora from the project's own files, one folder per fuzzer:
#   dxf/   the example drawings, the heating-system drawing and small generated drawings
#          of each version (seed_drawings.py; both need python3 with ezdxf)
#   dcl/   the module's dialog files and the DCL test files
#   lisp/  the example scripts, the console test programs and fuzz/commands.lsp
# and the dictionaries dxf.dict, dcl.dict and lisp.dict beside them.
# Usage: fuzz/make_seeds.sh SOURCE_ROOT OUTPUT_FOLDER   (the folder is made anew)
set -euo pipefail
src=$(cd "$1" && pwd)
out=$2
rm -rf "$out"
mkdir -p "$out/dxf" "$out/dcl" "$out/lisp"

cp "$src"/examples/*.dxf "$out/dxf/"
if /usr/bin/python3 -c 'import ezdxf' 2>/dev/null; then
  /usr/bin/python3 "$src/examples/heating-system.py" "$out/dxf/heating-system.dxf" >/dev/null
  /usr/bin/python3 "$src/fuzz/seed_drawings.py" "$out/dxf"
else
  echo "make_seeds: python3-ezdxf is missing; the DXF seeds are the example drawings alone" >&2
fi

# Files of the same name in different folders are told apart by their folder.
while IFS= read -r -d '' f; do
  rel=${f#"$src"/}
  cp "$f" "$out/dcl/${rel//\//_}"
done < <(find "$src/dwglib" "$src/tests/host_dcl/data" "$src/tests/frame/data" -name '*.dcl' -print0)

cp "$src"/examples/*.lsp "$src"/tests/console/programs/*.lsp "$src"/fuzz/*.lsp "$out/lisp/"
# Dictionaries: the words of DXF and DCL, and the names of the AutoLISP functions the console defines.
cp "$src/fuzz/dxf.dict" "$src/fuzz/dcl.dict" "$out/"
{
  echo '# AutoLISP: the functions the console defines and the marks of the reader'
  cat <<'MARKS'
"("
")"
"'"
"\""
"\\"
"."
";"
"(setq "
"(defun "
"(lambda "
MARKS
  grep -ho 'define(L"[^"]*"' "$src"/host/lisp/*.cpp | sed 's/^define(L"//; s/"$//' | sort -u |
    tr 'A-Z' 'a-z' | sed 's/\\/\\\\/g; s/"/\\"/g; s/.*/"&"/'
  # The host's commands, as (command ...) names them.
  grep -ho 'CommandRegistration [A-Za-z0-9_]*(L"[^"]*"' "$src"/host/commands/*.cpp |
    sed 's/.*(L"//; s/"$//' | sort -u | sed 's/.*/"\\"&\\""/'
} >"$out/lisp.dict"
echo "seeds in $out: $(ls "$out/dxf" | wc -l) DXF, $(ls "$out/dcl" | wc -l) DCL, $(ls "$out/lisp" | wc -l) AutoLISP"
