#!/bin/bash
# The report program from the command line: each case runs it as a user would and checks
# what it prints and its exit code.
# usage: cli_test.sh CASE   with REPORT (the program), SAMPLE (the folder of the sample
# projects), FIXTURES (the fixture workbooks), SAMPLES (the demo workbook) and OUT (a folder
# for the pictures) in the environment.
set -u

# Qt keeps a private runtime folder; without one it makes it in the temporary folder.
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$OUT/qt-runtime}"
mkdir -p -m 700 "$XDG_RUNTIME_DIR"

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# run ARGS...: sets out, err and code.
run() {
  out=$("$REPORT" "$@" 2>"$OUT/stderr") && code=0 || code=$?
  err=$(cat "$OUT/stderr")
}

expect_code() { [ "$code" -eq "$1" ] || fail "exit code $code, not $1; stderr: $err"; }
expect_out() { grep -qF -- "$1" <<<"$out" || fail "output lacks: $1"$'\n'"$out"; }
expect_no_out() { ! grep -qF -- "$1" <<<"$out" || fail "output holds: $1"$'\n'"$out"; }
# One line on the standard error, naming what was wrong, and exit code 2.
expect_bad() {
  expect_code 2
  [ "$(wc -l <<<"$err")" -eq 1 ] || fail "not one line: $err"
  grep -qF -- "$1" <<<"$err" || fail "error lacks: $1; it is: $err"
  [ -z "$out" ] || fail "a bad input printed: $out"
}

P="$SAMPLE/demo.mdb"
SEL=(--lithology ore --drawing North)

# csv_field LINE_PATTERN COLUMN: a field of the first CSV line that begins with the pattern.
csv_field() { grep -m1 "^$1" <<<"$out" | cut -d, -f"$2"; }

case "$1" in
  triangles)
    run triangles "$P" "${SEL[@]}"
    expect_code 0
    expect_out "DH-01"
    expect_out "area relative tenor %"
    run --csv triangles "$P" "${SEL[@]}"
    expect_code 0
    [ "$(head -1 <<<"$out")" = "triangle,corner 1,corner 2,corner 3,area m2,length m,tenor %,density,cubage 1000m3,tonnage kt,reserve kt" ] ||
      fail "CSV header: $(head -1 <<<"$out")"
    [ "$(grep -c '^[12],' <<<"$out")" -eq 2 ] || fail "two triangle rows wanted"
    # Read-only: a write-protected copy reads the same, and the file is left as it was.
    before=$(md5sum <"$P")
    cp "$P" "$OUT/locked.mdb" && chmod 444 "$OUT/locked.mdb"
    first="$out"
    run --csv triangles "$OUT/locked.mdb" "${SEL[@]}"
    expect_code 0
    [ "$out" = "$first" ] || fail "the write-protected copy reads otherwise"
    rm -f "$OUT"/locked.mdb*
    [ "$(md5sum <"$P")" = "$before" ] || fail "the project file changed"
    for journal in "$P-wal" "$P-shm"; do [ ! -e "$journal" ] || fail "$journal left behind"; done
    ;;
  grade_tonnage_limits)
    # The curve at the cut-offs of the limit tables gives their totals; 0 gives the drawing's.
    run --csv grade-tonnage "$P" "${SEL[@]}" --cutoffs 0:1:0.5
    expect_code 0
    for limit in 0.5 1; do
      curve=$(grep -m1 "^$limit," <<<"$out")
      run --csv triangles "$P" "${SEL[@]}" --limit "$limit"
      total=$(grep -m1 '^total,' <<<"$out")
      [ "$(cut -d, -f3 <<<"$curve")" = "$(cut -d, -f10 <<<"$total")" ] || fail "tonnage at $limit: $curve / $total"
      [ "$(cut -d, -f5 <<<"$curve")" = "$(cut -d, -f11 <<<"$total")" ] || fail "reserve at $limit: $curve / $total"
      [ "$(cut -d, -f6 <<<"$curve")" = "$(cut -d, -f9 <<<"$total")" ] || fail "cubage at $limit: $curve / $total"
      run --csv grade-tonnage "$P" "${SEL[@]}" --cutoffs 0:1:0.5
    done
    curve=$(grep -m1 "^0," <<<"$out")
    run --csv triangles "$P" "${SEL[@]}"
    total=$(grep -m1 '^total,' <<<"$out")
    [ "$(cut -d, -f3,5,6 <<<"$curve")" = "$(cut -d, -f10,11,9 <<<"$total" | awk -F, '{ print $2 "," $3 "," $1 }')" ] ||
      fail "cut-off 0: $curve / $total"
    ;;
  plot)
    rm -f "$OUT/demo-grade-tonnage.png" "$OUT/demo-grade-tonnage.svg"
    for ext in png svg; do
      run grade-tonnage "$P" "${SEL[@]}" --cutoffs 0:3:0.1 --plot "$OUT/demo-grade-tonnage.$ext"
      expect_code 0
      [ -s "$OUT/demo-grade-tonnage.$ext" ] || fail "no $ext plot"
    done
    head -c 8 "$OUT/demo-grade-tonnage.png" | grep -q PNG || fail "not a PNG"
    grep -q "<svg" "$OUT/demo-grade-tonnage.svg" || fail "not an SVG"
    ;;
  explain)
    run explain "$P" "${SEL[@]}" --triangle 2
    expect_code 0
    expect_out "DH-05"
    expect_no_out "WARNING"
    run explain "$SAMPLE/cut.mdb" "${SEL[@]}" --triangle 2
    expect_code 0
    expect_out "not counted: cut out by Select-Cut"
    expect_out "WARNING: the stored figures differ"
    expect_out "DH-05: 1 layer(s) of its log cut out by Select-Cut"
    # The first triangle has no corner at DH-05: nothing to flag.
    run explain "$SAMPLE/cut.mdb" "${SEL[@]}" --triangle 1 --limit 1
    expect_code 0
    expect_out "below the limit 1"
    expect_no_out "WARNING"
    ;;
  bench)
    # The window's all-triangle scan of the same drawing at 395 to 375 prints these.
    run --csv bench "$P" "${SEL[@]}" --up 395 --down 375
    expect_code 0
    while read -r triangle tenor reserve; do
      [ "$(csv_field "$triangle," 5)" = "$tenor" ] || fail "tenor of $triangle: $out"
      [ "$(csv_field "$triangle," 7)" = "$reserve" ] || fail "reserve of $triangle: $out"
    done < <(grep -o 'text [0-9.]* [0-9.]* "[0-9.]*" color=\(65280\|255\)' "$SCENARIOS/scan_all.out" |
      head -4 | awk 'NR % 2 == 1 { gsub(/"/, "", $4); tenor = $4 } NR % 2 == 0 { gsub(/"/, "", $4);
           printf "%d %.2f %.2f\n", ++n, tenor, $4 }')
    ;;
  check_workbook)
    run check-workbook "$SAMPLES/demo-holes.xls"
    expect_code 0
    expect_out "no problem found"
    while IFS='|' read -r file cell text; do
      run --csv check-workbook "$FIXTURES/$file"
      expect_code 1
      grep -q "^$cell,.*$text" <<<"$out" || fail "$file: no finding at $cell: $text"$'\n'"$out"
    done <<'CASES'
later_lithology.xls|B9|"dyke"" is absent from the first hole
ayni.xls|A9|"ayni"" in the first hole is dropped
zero_tenor.xls|A12|a tenor of 0 ends the log
zero_x.xls|B1|x = 0 ends the list of holes
point_name.xls|B3|marks a point, not a hole
blank_inside.xls|B15|a blank cell inside the log
text_in_number.xls|B12|where a number is needed (density)
fractional.xls|B19|leave a fraction of a layer
national_grid.xls|A2|y = 4500000 is outside the file's range
same_place.xls|C1|same place (600, 100) as the hole of column A
CASES
    ;;
  bad_input)
    run triangles "$SAMPLE/none.mdb" "${SEL[@]}"
    expect_bad "none.mdb"
    run triangles "$SAMPLES/demo-holes.xls" "${SEL[@]}"
    expect_bad "is not a project"
    run triangles "$P" --lithology gold --drawing North
    expect_bad 'no lithology "gold"'
    run explain "$P" --lithology ore --drawing South --triangle 1
    expect_bad 'no drawing "South"'
    run bench "$P" "${SEL[@]}" --up 395 --down 375 --limit 7
    expect_bad 'no limit "7" on drawing "North" (it has: 0.5, 1)'
    run grade-tonnage "$P" "${SEL[@]}" --cutoffs 3:1:0.5
    expect_bad "malformed range"
    run grade-tonnage "$P" "${SEL[@]}" --cutoffs 0:1
    expect_bad "malformed range"
    run grade-tonnage "$P" "${SEL[@]}" --cutoffs 0:1:0.1 --plot curve.jpg
    expect_bad "--plot wants a .png or .svg file"
    run explain "$P" "${SEL[@]}" --triangle 9
    expect_bad "no triangle 9"
    run triangles "$P" --drawing North
    expect_bad "missing --lithology"
    run summary "$P"
    expect_bad 'unknown command "summary"'
    run check-workbook "$FIXTURES/none.xls"
    expect_bad "none.xls"
    ;;
  *)
    fail "unknown case $1"
    ;;
esac
echo "ok"
