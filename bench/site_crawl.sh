#!/usr/bin/env bash
# Crawl speed of `tessarine-site analyse` against linkchecker, in the same run, on the same
# generated local site (5,000 pages by default): pages per second, peak memory, ratio.
#
#   bash bench/site_crawl.sh [PATH/TO/tessarine-site]
#
# PAGES sets the site's size, GENSITE the generator, RUNS the number of tessarine-site runs
# (the median is kept; linkchecker runs once).
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
pages=${PAGES:-5000}
runs=${RUNS:-3}
gensite=${GENSITE:-$here/../shared/tools/gensite.py}

exe=${1:-}
if [[ -z $exe ]]; then
  for candidate in "$here/build/src/tessarine-site" "$here/build-site/src/tessarine-site"; do
    if [[ -x $candidate ]]; then
      exe=$candidate
      break
    fi
  done
fi
if [[ -z $exe || ! -x $exe ]]; then
  echo "site_crawl.sh: no tessarine-site; build it first:" >&2
  echo "  cmake -S . -B build -G Ninja && cmake --build build -j2 --target tessarine-site" >&2
  exit 2
fi

# The peer and the meter: installed here when missing, they are no build dependency.
need=()
command -v linkchecker >/dev/null 2>&1 || need+=(linkchecker)
[[ -x /usr/bin/time ]] || need+=(time)
if ((${#need[@]})); then
  sudo=""
  [[ $(id -u) -ne 0 ]] && sudo=sudo
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${need[@]}"
fi

work=$(mktemp -d /tmp/site-crawl.XXXXXX)
trap 'rm -rf "$work"' EXIT
# linkchecker started as root drops to the user nobody, who must be able to read the site.
chmod 755 "$work"
site=$work/site
python3 "$gensite" "$site" "$pages"
chmod -R a+rX "$site"
start=$site/index.html

now() { date +%s.%N; }

# run_timed OUT COMMAND...: wall seconds in $secs, peak resident set in KiB in $rss_kb.
run_timed() {
  local out=$1
  shift
  local t0 t1
  t0=$(now)
  /usr/bin/time -f '%M' -o "$work/rss" "$@" >"$out" 2>"$out.err" || true
  t1=$(now)
  secs=$(python3 -c "print(f'{$t1 - $t0:.3f}')")
  rss_kb=$(tail -n 1 "$work/rss")
}

tess_times=()
tess_rss=0
for ((i = 0; i < runs; i++)); do
  run_timed "$work/tessarine.out" "$exe" analyse "$start"
  tess_times+=("$secs")
  if ((rss_kb > tess_rss)); then tess_rss=$rss_kb; fi
done
tess_secs=$(printf '%s\n' "${tess_times[@]}" | sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}')
tess_summary=$(tail -n 1 "$work/tessarine.out" | tr '\t' ' ')

run_timed "$work/linkchecker.out" linkchecker --no-status "file://$start"
lc_secs=$secs
lc_rss=$rss_kb
lc_summary=$(grep -E "^That's it" "$work/linkchecker.out" || echo "(no summary)")
lc_version=$(linkchecker --version 2>/dev/null | head -n 1)

python3 - "$pages" "$tess_secs" "$tess_rss" "$lc_secs" "$lc_rss" "${tess_times[*]}" <<'EOF'
import sys
pages, ts, tr, ls, lr, all_ts = int(sys.argv[1]), float(sys.argv[2]), int(sys.argv[3]), \
    float(sys.argv[4]), int(sys.argv[5]), sys.argv[6]
tp, lp = pages / ts, pages / ls
print(f"site: {pages} pages")
print(f"tessarine-site analyse: {ts:8.3f} s  {tp:10.0f} pages/s  peak RSS {tr / 1024:7.1f} MiB"
      f"  (median of runs: {all_ts})")
print(f"linkchecker:            {ls:8.3f} s  {lp:10.0f} pages/s  peak RSS {lr / 1024:7.1f} MiB")
ratio = tp / lp
print(f"speed ratio: {ratio:.1f} x  (target: at least 20 x) -> {'met' if ratio >= 20 else 'NOT met'}")
EOF
echo "tessarine-site: $tess_summary"
echo "$lc_version: $lc_summary"
