#!/bin/sh
# Registers the driver that connection strings call {SQL Server}, unless there is one: for the machine when run
# as root, for the user otherwise. Registering again changes nothing.
set -eu

if odbcinst -q -d -n "SQL Server" >/dev/null 2>&1; then
  exit 0
fi
driver=$(find /usr/lib /usr/local/lib -name libtdsodbc.so 2>/dev/null | head -n 1)
if [ -z "$driver" ]; then
  echo "FreeTDS (package tdsodbc) is missing: no server can be reached, the embedded file can." >&2
  exit 1
fi
entry=$(printf '[SQL Server]\nDescription = SQL Server over FreeTDS\nDriver = %s\n' "$driver")
if [ "$(id -u)" = 0 ]; then
  printf '%s\n' "$entry" | odbcinst -i -d -r
else
  printf '\n%s\n' "$entry" >>"$HOME/.odbcinst.ini"
fi
