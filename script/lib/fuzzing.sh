#!/usr/bin/env bash
# Builds the fuzzers and runs them, where clang is: fuzzing.sh MINUTES [--keep] [FUZZER…]
set -euo pipefail
lib=$(dirname -- "$(realpath -- "$0")")
# shellcheck source=lib/common.sh
source "$lib/common.sh"
# shellcheck source=lib/build.sh
source "$lib/build.sh"
# shellcheck source=lib/table.sh
source "$lib/table.sh"
caller=script/fuzz
cd -- "$project_dir"

programs=$build_dir/fuzz/fuzz
work=$build_dir/fuzzing
kept=$project_dir/fuzz/corpus

# The longest input of each fuzzer's first run and of its second, which gets a quarter of the time:
# short ones are quick, and some faults need long ones. Up to 16 KiB a text stream reads a file in
# one go.
declare -A short=([fuzz_number]=40 [fuzz_lines]=80 [fuzz_wel]=250 [fuzz_names]=250 [fuzz_bek]=250
  [fuzz_dkl]=250)
declare -A long=([fuzz_number]=400 [fuzz_lines]=4000 [fuzz_wel]=16000 [fuzz_names]=16000
  [fuzz_bek]=16000 [fuzz_dkl]=16000)
all=(fuzz_wel fuzz_names fuzz_bek fuzz_dkl fuzz_lines fuzz_number)

# Longer inputs are not kept: the corpus is read again at every test.
longest_kept=1500

# A run lasts a tenth of a millisecond: whole stacks of each allocation, its filling, and much memory
# that is held back from use would double that. A replay of a finding has them all.
export ASAN_OPTIONS=malloc_context_size=1:max_malloc_fill_size=64:quarantine_size_mb=16

options=(-dict="$project_dir/fuzz/words.dict" -timeout=20 -rss_limit_mb=2048 -print_final_stats=1)

build() {
  configure_and_build fuzz || return
  rm -rf -- "$work/seeds"
  "$programs/make_seeds" "$work/seeds" || return
  cp -R -- "$project_dir"/fuzz/samples/. "$work/seeds"
}

# What an earlier call found is tried first, until it is removed.
make_folders() {
  local name
  for name in "${names[@]}"; do
    mkdir -p -- "$work"/{corpus,findings}/"$name" "$kept/$name"
    rm -f -- "$work/$name"
  done
}

# fuzz_for SECONDS NAME LONGEST
fuzz_for() {
  "$programs/$2" "${options[@]}" -max_total_time="$1" -max_len="$3" \
    -artifact_prefix="$work/findings/$2/" \
    "$work/corpus/$2" "$work/findings/$2" "$kept/$2" "$work/seeds/$2"
}

fuzz() {
  local name=$1 start=$SECONDS status=0
  { fuzz_for $((seconds * 3 / 4)) "$name" "${short[$name]}" &&
      fuzz_for $((seconds / 4)) "$name" "${long[$name]}"; } >"$work/$name.log" 2>&1 || status=$?
  row_of "$name" "$status" $((SECONDS - start)) >"$work/$name"
}

# number_in LOG PATTERN COMMAND…: the numbers that end a match of the pattern, made one by the command.
number_in() {
  local log=$1 pattern=$2 number
  shift 2
  number=$({ grep -aoE "$pattern" "$log" || true; } | grep -oE '[0-9]+$' | "$@")
  printf '%d\n' "${number:-0}"
}

sum() { awk '{ all += $1 } END { printf "%d\n", all }'; }
highest() { sort -n | tail -n 1; }

# row_of NAME STATUS SECONDS. A fuzzer that failed without an input to show for it is a finding, too.
row_of() {
  local log=$work/$1.log runs reached places findings
  runs=$(number_in "$log" 'stat::number_of_executed_units: +[0-9]+' sum)
  reached=$(number_in "$log" '\bcov: [0-9]+' highest)
  places=$(number_in "$log" 'Loaded 1 modules +\([0-9]+' highest)
  findings=$(grep -ac 'Test unit written to' "$log" || true)
  (($2 == 0 || findings > 0)) || findings=1
  printf '%s\t%d\t%d\t%d of %d\t%d\n' "$1" "$runs" $((runs / ($3 > 0 ? $3 : 1))) "$reached" "$places" \
    "$findings"
}

run_fuzzers() {
  local name
  trap 'kill $(jobs -p) 2>/dev/null || true' EXIT
  trap 'exit 130' INT TERM HUP
  for name in "${names[@]}"; do
    (($(jobs -rp | wc -l) < workers)) || wait -n
    fuzz "$name" &
  done
  wait
}

show_table() {
  { printf 'fuzzer\texecutions\texecutions/s\tcoverage\tfindings\n'
    awk -F '\t' '{ print; runs += $2; findings += $5 }
      END { printf "all\t%d\t\t\t%d\n", runs, findings }' "${names[@]/#/$work/}"; } | aligned
}

count_findings() { cut -f 5 -- "${names[@]/#/$work/}" | sum; }

# What reaches the same places with fewer and shorter inputs takes the place of what was kept before.
keep() {
  local name fresh
  for name in "${names[@]}"; do
    fresh=$work/fresh/$name
    rm -rf -- "$fresh"
    mkdir -p -- "$fresh"
    "$programs/$name" -set_cover_merge=1 -max_len="$longest_kept" "$fresh" "$kept/$name" \
      "$work/corpus/$name" "$work/seeds/$name" || return
    rm -rf -- "${kept:?}/$name"
    mv -- "$fresh" "$kept/$name"
  done
}

read_arguments() {
  local argument
  minutes=$1
  shift
  for argument in "$@"; do
    if [[ $argument == --keep ]]; then is_kept=yes
    elif [[ -n ${short[$argument]-} ]]; then names+=("$argument")
    else die "there is no fuzzer $argument" "There are: ${all[*]}"; fi
  done
  ((${#names[@]} > 0)) || names=("${all[@]}")
}

is_kept=
names=()
read_arguments "$@"
workers=$(nproc)
((workers <= ${#names[@]})) || workers=${#names[@]}
rounds=$(((${#names[@]} + workers - 1) / workers))
seconds=$((minutes * 60 / rounds))

logged "$work.log" "building the fuzzers" build || die "there are no fuzzers" "The lines above say why"
make_folders
say "fuzzing with $workers at a time, each for $seconds s …"
run_fuzzers
show_table
(($(count_findings) == 0)) || die "there are findings" \
  "They lie in $work/findings, the logs beside it; fuzz/README.md says what to do with them"
[[ -z $is_kept ]] || logged "$work/keep.log" "minimising the corpus" keep ||
  die "the corpus could not be minimised" "The lines above say why"
