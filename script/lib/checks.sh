#!/usr/bin/env bash
# All checks of the project, run where its dependencies are: checks.sh good|faulty, as the package has
# proved before. The last line counts the tests that ctest ran, and every other step that failed as one
# more failure.
set -euo pipefail
lib=$(dirname -- "$(realpath -- "$0")")
# shellcheck source=lib/common.sh
source "$lib/common.sh"
# shellcheck source=lib/build.sh
source "$lib/build.sh"
# shellcheck source=lib/analysis.sh
source "$lib/analysis.sh"
caller=script/test
cd -- "$project_dir"

passed=0
failed=0

fail() {
  say "FAILED: $*"
  failed=$((failed + 1))
}

is_own_checkout() {
  [[ $(git rev-parse --show-toplevel 2>/dev/null) == "$project_dir" ]]
}

# Without git, everything that is not built counts.
source_files() {
  if is_own_checkout; then
    git ls-files -z -co --exclude-standard -- '*.cpp' '*.h' '*.c'
  else
    find . -path ./build -prune -o -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.c' \) -print0
  fi
}

# A file that git still lists may be deleted already.
check_formatting() {
  local -a listed files=()
  local file
  mapfile -d '' -t listed < <(source_files)
  for file in "${listed[@]}"; do [[ ! -f $file ]] || files+=("$file"); done
  ((${#files[@]} > 0)) || { echo 'no source file found'; return 1; }
  clang-format --dry-run --Werror "${files[@]}" 2>&1 && return
  printf '\nnot formatted:\n'
  for file in "${files[@]}"; do
    clang-format --dry-run --Werror "$file" 2>/dev/null || printf '  %s\n' "$file"
  done
  return 1
}

# attribute FILE NAME: of the first element of the results that ctest wrote.
attribute() { grep -m 1 -oE "\\b$2=\"[0-9]+\"" "$1" | grep -oE '[0-9]+'; }

count_results() {
  local results=$1 all bad skipped=0 name
  [[ -s $results ]] || { fail "ctest left no results in $results"; return; }
  all=$(attribute "$results" tests)
  bad=$(attribute "$results" failures)
  for name in skipped disabled; do skipped=$((skipped + $(attribute "$results" "$name"))); done
  ((all > 0)) || fail "no test ran"
  passed=$((passed + all - bad - skipped))
  failed=$((failed + bad))
}

# Failures that ctest counted are not counted again.
run_tests() {
  local results=$build_dir/$1/results.xml before=$failed status=0
  rm -f -- "$results"
  say "testing $1 …"
  ctest --preset "$1" --parallel "$(nproc)" --output-junit "$results" || status=$?
  count_results "$results"
  ((status == 0 || failed > before)) || fail "ctest $1 ended with code $status"
}

check_preset() {
  if logged "$build_dir/$1.log" "building $1" configure_and_build "$1"; then
    run_tests "$1"
  else
    fail "building $1"
  fi
}

# Every source file that takes part in the build, but for those that the build writes.
built_sources() {
  grep -oP '^  "file": "\K[^"]+' "$build_dir/release/compile_commands.json" |
    grep -v "^$build_dir/" | sort -u
}

# From version 22 on it passes over the headers of the system, which takes half of the time.
clang_tidy() { command -v clang-tidy-22 || echo clang-tidy; }

# Its own progress would bury the findings.
check_with_clang_tidy() {
  built_sources | analyse "$(clang_tidy)" -p build/release --quiet 2>&1 |
    { grep -vE '^[0-9]+ warnings? generated\.$|^\[[0-9/]+\] Processing file ' || true; }
}

check_with_clazy() {
  built_sources | analyse clazy-standalone -p build/release --checks=level0,level1 --extra-arg=-Werror
}

check_scripts() {
  local script
  local -a commands
  mapfile -t commands < <(find script -maxdepth 1 -type f)
  shellcheck --external-sources --source-path=SCRIPTDIR --source-path=script \
    .ci/run "${commands[@]}" script/lib/*.sh tests/scripts/*.sh || return
  for script in tests/scripts/*.sh; do bash "$script" || return; done
  "$(clang_tidy)" --quiet script/lib/*.c tests/scripts/*.c --
}

[[ $1 == good ]] || fail "package: script/package --test shows it"
logged "$build_dir/format.log" "checking the formatting" check_formatting ||
  fail "formatting: script/env clang-format -i FILE mends it"
logged "$build_dir/scripts.log" "testing the scripts" check_scripts || fail "tests/scripts"
check_preset dev
check_preset release
# Both need the headers that the build writes.
logged "$build_dir/clang-tidy.log" "analysing with clang-tidy" check_with_clang_tidy ||
  fail "clang-tidy: script/env $(basename "$(clang_tidy)") -p build/release FILE shows it"
logged "$build_dir/clazy.log" "analysing with clazy" check_with_clazy ||
  fail "clazy: script/env clazy-standalone -p build/release FILE shows it"

((passed + failed > 0)) || fail "no test ran"
printf '\n%d passed, %d failed\n' "$passed" "$failed"
((failed == 0))
