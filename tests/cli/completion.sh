#!/bin/bash
# Completes command lines in bash, fish and zsh with the scripts that the tool makes:
#   completion.sh <tolva>
set -u
tool=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit
mkdir bin
ln -s "$tool" bin/tolva
export PATH=$work/bin:$PATH
touch policy-1.xml

# Each function completes the last of its arguments and prints the candidates.

in_bash() {
  bash -c '
    source <(tolva completion bash)
    compopt() { :; }
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
    _tolva
    printf "%s\n" "${COMPREPLY[@]}"' bash "$@"
}

# shellcheck disable=SC2016
in_fish() {
  tolva completion fish > script.fish
  XDG_CONFIG_HOME=$work HOME=$work fish -c 'source script.fish; complete -C "$argv"' "$@" | cut -f1
}

# zsh completes on a terminal alone. What it makes of the line is the only candidate.
in_zsh() {
  cat > start.zsh << 'END'
PROMPT=; stty -echo; autoload -U compinit; compinit -u -D; source <(tolva completion zsh)
complete-and-print() { zle complete-word; print -r -- "$BUFFER" > line }
zle -N complete-and-print; bindkey "^T" complete-and-print; touch ready
END
  rm -f line ready
  # shellcheck disable=SC2016
  zsh -f -c '
    zmodload zsh/zpty
    zpty shell zsh -f -i
    zpty -w shell "source ./start.zsh"
    repeat 100; do [[ -e ready ]] && break; sleep 0.05; done
    zpty -w -n shell "$*"$'"'\\x14'"'
    repeat 100; do [[ -s line ]] && break; sleep 0.05; done
    zpty -d shell' zsh "$@" > /dev/null
  sed 's/[= ]*$//; s/.* //' line
}

failed=0
expect() { # <shell> <a candidate> <word...>
  local shell=$1 candidate=$2
  shift 2
  case $shell in
    bash) in_bash "$@" ;;
    fish) in_fish "$@" ;;
    zsh) in_zsh "$@" ;;
  esac > found
  if ! grep -qxF -- "$candidate" found; then
    echo "$shell: '$*' is not completed by '$candidate' but by:"
    head -n 20 found
    failed=1
  fi
}

for shell in bash fish zsh; do
  expect $shell explain tolva e
  expect $shell --depth tolva explain --de
  expect $shell json tolva explain --format j
  expect $shell xsd tolva schema x
  expect $shell proxy tolva schema xsd pr
  expect $shell remote-filtering tolva new --full re
  expect $shell policy/LocationArray/ tolva explain policy/Loc
  expect $shell policy/Log/MaxLogSize tolva explain policy/Log/M
  expect $shell policy-1.xml tolva new policy -o policy-
  expect $shell zsh tolva completion z
done
# bash takes an option with its value apart.
expect bash json tolva explain --format = j
expect bash json tolva explain --format =
expect bash policy/Log/MaxLogSize tolva explain --format = json policy/Log/M
exit $failed
