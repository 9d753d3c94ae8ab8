#!/usr/bin/env bash
# The manual page and the completions that the build writes.
set -euo pipefail
pages=$1 command=$2

fail() {
  echo "pages_test: $*" >&2
  exit 1
}

# --- bash: what is offered behind a line that is being typed --------------------

source "$pages/cantorel.bash"

# offered WORD...: the last word is being typed.
offered() {
  COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
  _cantorel
  echo "${COMPREPLY[*]}"
}

# expect OFFERED WORD...
expect() {
  local expected=$1 got
  shift
  got=$(offered "$@")
  [[ $got == "$expected" ]] || fail "'$*' offers '$got', not '$expected'"
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
mkdir 'my folder'
touch 'my record.mrc'

expect "convert config" cantorel con
expect 'init' cantorel config i
expect '382 655 all' cantorel convert --mode ''
expect 'text' cantorel convert --offline --format t
expect 'my record.mrc my folder' cantorel convert my
expect 'my folder' cantorel config check --config ''
expect '' cantorel heading my
expect '--lookup-cache --lookup-cache-days' cantorel heading --lookup-c

# --- every command is told of, with examples --------------------------------------

# calls WORD...: the calls that begin so, a line each.
calls() {
  local below
  below=$("$@" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]\+\) .*/\1/p')
  [[ -n $below ]] || { echo "${*:2}"; return; }
  local word
  for word in $below; do calls "$@" "$word"; done
}

while read -r call; do
  "$command" $call --help | grep -q '^Examples:' || fail "$call --help has no examples"
  grep -q "^\.SS cantorel $call\$" "$pages/cantorel.1" || fail "the manual has no $call"
done < <(calls "$command")

# --- other programs find nothing to say ---------------------------------------------

if command -v mandoc >/dev/null; then
  mandoc -T lint -W error "$pages/cantorel.1"
fi
if command -v zsh >/dev/null; then
  zsh -n "$pages/_cantorel"
fi
