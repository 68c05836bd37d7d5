#!/usr/bin/env bash
# Global replace of one word over every page of the generated site (5,000 files by
# default), `tessarine-site replace` against `rg -l WORD DIR | xargs sed -i`, each on its
# own fresh copy of the site, in the same run; then the two results compared file by file.
#
#   bash bench/global_replace.sh [PATH/TO/tessarine-site]
#
# PAGES sets the site's size, GENSITE the generator, RUNS the number of timed runs of each
# (the median is kept; every run starts from a fresh copy), WORD and NEW the texts.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
pages=${PAGES:-5000}
runs=${RUNS:-3}
word=${WORD:-tempor}
new=${NEW:-TEMPORA}
gensite=${GENSITE:-$here/../shared/tools/gensite.py}

exe=${1:-}
if [[ -z $exe ]]; then
  for candidate in "$here/build/src/tessarine-site" "$here/build-logic/src/tessarine-site"; do
    if [[ -x $candidate ]]; then
      exe=$candidate
      break
    fi
  done
fi
if [[ -z $exe || ! -x $exe ]]; then
  echo "global_replace.sh: no tessarine-site; build it first:" >&2
  echo "  cmake -S . -B build -G Ninja && cmake --build build -j2 --target tessarine-site" >&2
  exit 2
fi

# The peer: installed here when missing, it is no build dependency.
if ! command -v rg >/dev/null 2>&1; then
  sudo=""
  [[ $(id -u) -ne 0 ]] && sudo=sudo
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends ripgrep
fi

work=$(mktemp -d /tmp/global-replace.XXXXXX)
trap 'rm -rf "$work"' EXIT
python3 "$gensite" "$work/site" "$pages"

now() { date +%s.%N; }
elapsed() { python3 -c "print(f'{$2 - $1:.3f}')"; }
median() { printf '%s\n' "$@" | sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }

tess_times=()
peer_times=()
for ((i = 0; i < runs; i++)); do
  rm -rf "$work/tess" "$work/peer"
  cp -a "$work/site" "$work/tess"
  cp -a "$work/site" "$work/peer"
  sync
  # The dialog's selection: every page of the site, in one list.
  mapfile -t files < <(cd "$work/tess" && find "$PWD" -type f -name '*.html' | sort)

  # Each timed run starts with the disk quiet, and the two take turns going first, so
  # that neither pays for the other's write-back.
  run_tess() {
    sync
    t0=$(now)
    "$exe" replace --match-case "$word" --with "$new" "${files[@]}" >"$work/tess.out" 2>/dev/null
    t1=$(now)
    tess_times+=("$(elapsed "$t0" "$t1")")
  }
  run_peer() {
    sync
    t0=$(now)
    rg -l "$word" "$work/peer" | xargs -d '\n' sed -i "s/$word/$new/g"
    t1=$(now)
    peer_times+=("$(elapsed "$t0" "$t1")")
  }
  if ((i % 2 == 0)); then
    run_tess
    run_peer
  else
    run_peer
    run_tess
  fi
done

tess_secs=$(median "${tess_times[@]}")
peer_secs=$(median "${peer_times[@]}")
rewritten=$(awk -F'\t' '$2 != " 0"' "$work/tess.out" | wc -l)

# Byte-identical apart from the one CR LF that each rewrite adds at the end.
python3 - "$work/tess" "$work/peer" <<'PY'
import os, sys
tess, peer = sys.argv[1], sys.argv[2]
same = differ = 0
for folder, _, names in os.walk(peer):
    for name in names:
        p = os.path.join(folder, name)
        t = os.path.join(tess, os.path.relpath(p, peer))
        a, b = open(t, "rb").read(), open(p, "rb").read()
        orig = open(os.path.join(os.path.dirname(peer), "site", os.path.relpath(p, peer)), "rb").read()
        expected = b + b"\r\n" if b != orig else b
        if a == expected:
            same += 1
        else:
            differ += 1
            if differ <= 5:
                print(f"differs: {os.path.relpath(p, peer)}")
print(f"files compared: {same + differ}, identical (apart from the added line break): {same}, differing: {differ}")
PY

python3 - "$pages" "$tess_secs" "$peer_secs" "$rewritten" "${tess_times[*]}" "${peer_times[*]}" <<'PY'
import sys
pages, ts, ps, rewritten = int(sys.argv[1]), float(sys.argv[2]), float(sys.argv[3]), int(sys.argv[4])
print(f"site: {pages} pages, {rewritten} rewritten")
print(f"tessarine-site replace:      {ts:7.3f} s  (runs: {sys.argv[5]})")
print(f"rg -l | xargs sed -i:        {ps:7.3f} s  (runs: {sys.argv[6]})")
ratio = ts / ps
print(f"time ratio tessarine / peer: {ratio:.2f}  (target: at most 1.5) -> {'met' if ratio <= 1.5 else 'NOT met'}")
PY
