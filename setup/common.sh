# Shared by the commands at the top: installs what is missing, builds.
# Sourced with the project's folder as the current one. Quiet when there is nothing to do.

state=$PWD/.run
mkdir -p "$state/log"

# The toolkit wants a folder for its sockets, which a bare root login lacks.
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
  export XDG_RUNTIME_DIR=$state/runtime
  mkdir -p -m 700 "$XDG_RUNTIME_DIR"
fi

# Some ODBC drivers read texts by the locale.
[ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

# missing_packages LIST...: packages of the lists that are not installed, one a line.
missing_packages() {
  local installed
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' 2>/dev/null | sed -n 's/^installed //p' | sort -u)
  comm -13 <(printf '%s\n' "$installed") <(grep -hvE '^(#|$)' "$@" | sort -u)
}

# install_packages [LIST...]: those of setup/packages.txt unless lists are named.
install_packages() {
  [ "$#" -gt 0 ] || set -- setup/packages.txt
  command -v dpkg-query >/dev/null || fail "This set-up is made for Debian 12; install the packages of setup/packages.txt by hand."
  local missing root=()
  missing=$(missing_packages "$@")
  [ -z "$missing" ] && return
  [ "$(id -u)" = 0 ] || root=(sudo)
  printf 'Installing: %s\n' "$(echo $missing)"
  export DEBIAN_FRONTEND=noninteractive
  { "${root[@]}" apt-get update -q && "${root[@]}" apt-get install -q -y --no-install-recommends $missing; } \
    >"$state/log/packages.log" 2>&1 </dev/null ||
    { tail -n 20 "$state/log/packages.log" >&2; fail "The packages above could not be installed; see $state/log/packages.log."; }
}

# build PRESET TARGET...
build() {
  local preset=$1 log=$state/log/build-$1.log
  shift
  if [ ! -f "build/$preset/build.ninja" ]; then
    printf 'Building (%s); the first time takes some minutes.\n' "$preset"
    cmake --preset "$preset" >"$log" 2>&1 </dev/null || { tail -n 30 "$log" >&2; fail "Configuring failed; see $log."; }
  fi
  cmake --build --preset "$preset" --target "$@" >"$log" 2>&1 </dev/null ||
    { grep -E 'error|FAILED' "$log" | head -n 30 >&2; fail "The build failed; see $log."; }
}

# The [SQL Server] entry of the ODBC driver manager.
register_driver() {
  [ -x setup/odbc.sh ] && { setup/odbc.sh >"$state/log/odbc.log" 2>&1 || cat "$state/log/odbc.log" >&2; }
  return 0
}

# set_up [LIST...]: packages as for install_packages, and the driver.
set_up() {
  install_packages "$@"
  register_driver
}
