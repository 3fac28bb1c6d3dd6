#!/usr/bin/env bash
# Installs a Debian package in a copy of this system that goes away with the script, uses it, and
# removes it. Runs as root in a mount namespace of its own: unshare --mount THIS PACKAGE
set -uo pipefail
. "$(dirname "$0")/checks.sh"

work=$(mktemp -d)
trap 'umount -R "$work/root" "$work/layer" 2>/dev/null; rmdir "$work/root" "$work/layer" "$work"' EXIT
mkdir "$work/layer" "$work/root"
mount --make-rprivate / && mount -t tmpfs tmpfs "$work/layer" &&
  mkdir "$work/layer/upper" "$work/layer/work" &&
  mount -t overlay overlay "$work/root" \
    -o "lowerdir=/,upperdir=$work/layer/upper,workdir=$work/layer/work" &&
  mount -t proc proc "$work/root/proc" && mount --rbind /dev "$work/root/dev" &&
  mount -t tmpfs tmpfs "$work/root/tmp" || {
  echo "SKIP the Debian package: no overlay over the root of this system"
  exit
}
cp "$1" "$work/root/tmp/tqcim.deb"

inside() {
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/ LC_ALL=C.UTF-8 chroot "$work/root" "$@"
}
examples=/usr/share/doc/tqcim/examples

# Container images leave documentation and manual pages out.
installs() {
  inside dpkg --path-include='/usr/share/*' -i /tmp/tqcim.deb &&
    same 'install ok installed' "$(inside dpkg-query -f '${Status}' -W tqcim)"
}

tells_health() {
  local output status=0
  output=$(inside "$@") || status=$?
  begins 'WARNING: system status Stressed; ' "$output" && same 1 "$status"
}

is_nobodys() {
  begins 'class,instances,status' \
    "$(chroot --userspec=nobody:nogroup "$work/root" \
      /usr/bin/tqcim classes --store "$examples/server.json" --format csv)"
}

# The lines of the class table: a heading and 47 classes.
has_every_class() {
  same 48 "$(inside tqcim classes --store "$examples/minimal.json" --format csv | wc -l)"
}

asks_firmware_first() {
  same '{"source": "firmware", "iniFolder": "/etc/tqcim/ini"}' "$(inside cat /etc/tqcim/tqcim.json)"
}

follows_its_configuration() {
  local file=$work/root/etc/tqcim/tqcim.json status=0
  cp "$file" "$work/layer/kept.json"
  echo "{\"source\": \"store-file:$examples/minimal.json\"}" >"$file"
  begins 'VORN_System: 1 instance, from the store file' "$(inside tqcim list VORN_System)" || status=1
  cp "$work/layer/kept.json" "$file"
  return $status
}

addresses() {
  inside tqcim list VORN_NetworkPort --store "$examples/server.json" --format csv | grep -c 255.255
}

hides_addresses() {
  [ "$(addresses)" -gt 0 ] || return
  sed -i 's/^nicipinfo.cimsnmp.disabled=0/nicipinfo.cimsnmp.disabled=1/' \
    "$work/root/etc/tqcim/ini/tqisst64.ini"
  same 0 "$(addresses)"
}

shows_the_manual_page() {
  same '' "$(inside man --warnings -l /usr/share/man/man1/tqcim.1.gz 2>&1 >/dev/null)" &&
    begins 'TQCIM(1)' "$(inside man -l /usr/share/man/man1/tqcim.1.gz)"
}

completes_classes() {
  same VORN_System "$(inside bash -c '
    . /usr/share/bash-completion/completions/tqcim
    COMP_WORDS=(tqcim list VORN_Sy) COMP_CWORD=2
    _tqcim tqcim VORN_Sy list
    echo "${COMPREPLY[@]}"')"
}

# What the upper layer has and the system below it hasn't, and the other way round, apart from what
# dpkg and the manual keep of their own work.
leaves_nothing() {
  inside dpkg --purge tqcim || return
  local path difference=0
  while read -r path; do
    case $path in
      var/log/dpkg.log | var/lib/dpkg/status-old | var/lib/dpkg/*[Ll]ock* | var/cache/man*) continue ;;
    esac
    if [ -c "$work/layer/upper/$path" ]; then
      echo "is gone: /$path"
      difference=1
    elif [ ! -e "/$path" ] && [ ! -L "/$path" ]; then
      echo "is left: /$path"
      difference=1
    fi
  done < <(find "$work/layer/upper" -mindepth 1 -printf '%P\n')
  return $difference
}

check 'the Debian package installs' installs
check 'it is set to the firmware table' asks_firmware_first
check 'health of a store file' tells_health tqcim health --store "$examples/server.json"
check 'health of the sample' tells_health env TQCIM_SOURCE=sample tqcim health
check 'every class is there' has_every_class
check 'whoever is not root can run it' is_nobodys
check 'it follows /etc/tqcim/tqcim.json' follows_its_configuration
check 'it follows /etc/tqcim/ini' hides_addresses
check 'man shows its page' shows_the_manual_page
check 'bash completes classes' completes_classes
check 'purged, it leaves nothing and takes nothing along' leaves_nothing
