#!/usr/bin/env bash
# The page tools of tessarine-site against their peers, side by side in one run, on the
# same generated inputs:
#   stats  1,000,000 log lines          vs goaccess on the same hits in the combined format
#   strip  a 10 MB page                 vs html2text
#   spell  the same page                vs hunspell -l -H (and the misspelled words compared)
#   tidy   the same page validated in a child process vs in process (tidy_child_bench)
# Times are wall-clock and CPU (user + system) seconds; ratios are peer / ours.
#
#   bash bench/page_tools.sh [BUILD_FOLDER]      (default: build)
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=${1:-$here/build}
exe=$build/src/tessarine-site
tidybench=$build/bench/tidy_child_bench
lines=${LINES_OF_LOG:-1000000}
pagebytes=${PAGE_BYTES:-10000000}
for f in "$exe" "$tidybench"; do
  if [[ ! -x $f ]]; then
    echo "page_tools.sh: $f is missing; build it first:" >&2
    echo "  cmake -S . -B build -G Ninja && cmake --build build -j2 --target tessarine-site tidy_child_bench" >&2
    exit 2
  fi
done

# The peers and the meter: installed here when missing, they are no build dependency.
need=()
command -v goaccess >/dev/null 2>&1 || need+=(goaccess)
command -v html2text >/dev/null 2>&1 || need+=(html2text)
command -v hunspell >/dev/null 2>&1 || need+=(hunspell)
[[ -x /usr/bin/time ]] || need+=(time)
command -v bc >/dev/null 2>&1 || need+=(bc)
if ((${#need[@]})); then
  sudo=""
  [[ $(id -u) -ne 0 ]] && sudo=sudo
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${need[@]}"
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
python3 "$here/bench/make_access_log.py" "$lines" "$work/accesslog.txt" --combined "$work/combined.log"
python3 "$here/bench/make_page.py" "$pagebytes" "$work/page.html"

# measure NAME COMMAND...: wall, cpu and peak memory into the variables NAME_wall...
measure() {
  local name=$1
  shift
  /usr/bin/time -f "%e %U %S %M" -o "$work/time" "$@" >/dev/null 2>"$work/stderr" || true
  read -r wall user sys kb < <(tail -n 1 "$work/time")  # after any "exited with" line
  printf -v "${name}_wall" %s "$wall"
  printf -v "${name}_cpu" %s "$(echo "$user + $sys" | bc -l)"
  printf -v "${name}_kb" %s "$kb"
}
ratio() { echo "scale=1; $1 / ($2 + 0.0005)" | bc -l; }
row() {  # TOOL OURS PEER
  local o=$2 p=$3
  local ow=${o}_wall oc=${o}_cpu ok=${o}_kb pw=${p}_wall pc=${p}_cpu pk=${p}_kb
  printf '%-6s ours %7.2f s wall %7.2f s cpu %8s KB | peer %7.2f s wall %7.2f s cpu %8s KB | peer/ours wall %5sx cpu %5sx\n' \
    "$1" "${!ow}" "${!oc}" "${!ok}" "${!pw}" "${!pc}" "${!pk}" "$(ratio "${!pw}" "${!ow}")" "$(ratio "${!pc}" "${!oc}")"
}

mkdir -p "$work/report"
measure stats "$exe" stats "$work/accesslog.txt" -o "$work/report/accessstats.html"
measure goaccess goaccess "$work/combined.log" --log-format=COMBINED -o "$work/report/goaccess.html"
measure strip "$exe" strip "$work/page.html" -o "$work/stripped.txt"
measure html2text sh -c "html2text '$work/page.html' >'$work/h2t.txt'"
measure spell sh -c "'$exe' spell --dict en_US '$work/page.html' >'$work/ours.txt'"
measure hunspell sh -c "hunspell -l -H -d en_US '$work/page.html' >'$work/theirs.txt'"

echo "inputs: $lines log lines, a page of $(stat -c %s "$work/page.html") bytes"
row stats stats goaccess
echo "       stats: $(echo "scale=0; $lines / ($stats_wall + 0.0005)" | bc -l) lines/s wall, $(echo "scale=0; $lines / ($stats_cpu + 0.0005)" | bc -l) lines/s cpu"
row strip strip html2text
row spell spell hunspell
cut -f2 "$work/ours.txt" | sort -u >"$work/ours.words"
sort -u "$work/theirs.txt" >"$work/theirs.words"
echo "       spell: $(wc -l <"$work/ours.txt") misspellings ours, $(wc -l <"$work/theirs.txt") hunspell;" \
  "distinct words only ours: $(comm -23 "$work/ours.words" "$work/theirs.words" | wc -l)," \
  "only hunspell's: $(comm -13 "$work/ours.words" "$work/theirs.words" | wc -l)"
echo -n "tidy   "
"$tidybench" "$work/page.html" "${TIDY_RUNS:-3}"
