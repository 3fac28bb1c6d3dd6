# For scripts that make checks and tell of each in a line: "PASS name", "FAIL name" or "SKIP reason".
# What a failed check wrote stands indented below it.

# check NAME COMMAND...: passes where the command succeeds.
check() {
  local name=$1 output
  shift
  if output=$("$@" 2>&1); then
    echo "PASS $name"
  else
    echo "FAIL $name"
    printf '%s\n' "$output" | sed 's/^/    /'
  fi
}

# same EXPECTED ACTUAL
same() {
  [ "$1" = "$2" ] && return
  printf 'expected: %s\nbut was:  %s\n' "$1" "$2"
  return 1
}

# begins EXPECTED ACTUAL
begins() {
  [ "${2#"$1"}" != "$2" ] && return
  printf 'expected to begin: %s\nbut was:           %s\n' "$1" "$2"
  return 1
}
