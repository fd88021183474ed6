#!/usr/bin/env bash
# Printers on the network: a sample printer announces itself through an Avahi of the test's own, in a network of its
# own, and kesto-lp lists it. Skipped, with a message, where these are missing.
# usage: network_test.sh BUILD-FOLDER
set -euo pipefail

skip() {
  echo "SKIPPED: $*" >&2
  exit 77
}

if [[ ${KESTO_OWN_NETWORK:-} != yes ]]; then
  for program in avahi-daemon dbus-daemon ippeveprinter ip unshare; do
    PATH=$PATH:/usr/sbin command -v "$program" >/dev/null || skip "$program is not installed"
  done
  getent passwd avahi >/dev/null || skip "there is no account avahi"
  unshare --net --mount true 2>/dev/null || skip "only root can make a network of its own"
  KESTO_OWN_NETWORK=yes exec unshare --net --mount "$0" "$1"
fi

bin=$1/bin
scratch=$(mktemp -d)
children=()
stop() {
  ((${#children[@]} == 0)) || kill "${children[@]}" 2>/dev/null || true
  wait
  rm -rf "$scratch"
}
trap stop EXIT
PATH=$PATH:/usr/sbin

# A pair of interfaces, since Avahi does not announce on loopback.
ip link set lo up
ip link add kesto0 type veth peer name kesto1 2>/dev/null || skip "no virtual interfaces"
ip addr add 10.9.9.1/24 dev kesto0
ip link set kesto0 up
ip link set kesto1 up
mount -t tmpfs none /run
mkdir /run/avahi-daemon
export DBUS_SYSTEM_BUS_ADDRESS=unix:path=$scratch/bus
dbus-daemon --session --nofork --nopidfile --address="$DBUS_SYSTEM_BUS_ADDRESS" 2>/dev/null &
children+=($!)
until [[ -S $scratch/bus ]]; do sleep 0.1; done
printf '[server]\nuse-ipv6=no\nallow-interfaces=kesto0\n' >"$scratch/avahi.conf"
avahi-daemon --no-rlimits --no-drop-root --no-chroot -f "$scratch/avahi.conf" 2>"$scratch/avahi" &
children+=($!)
until grep -q "startup complete" "$scratch/avahi"; do sleep 0.1; done
ippeveprinter -p 8631 -l Attic -d "$scratch" Sample >/dev/null 2>&1 &
printer=$!
children+=("$printer")

chmod 711 "$scratch"  # for the account that runs jobs
mkfifo "$scratch/places"
"$bin/kesto-demo-printer" --dir "$scratch/run" --folder-port 0 --json >"$scratch/places" &
children+=($!)
read -r places <"$scratch/places"
server=$(sed -E 's/.*"server":"([^"]*)".*/\1/' <<<"$places")
list() { "$bin/kesto-lp" -h "$server" --list --network --timeout 3; }
for _ in {1..100}; do
  if list | grep -q $'^Sample\ton the network\tipps*://.*\tAttic$'; then found=yes && break; fi
done
[[ ${found:-} == yes ]] || { list; echo "the printer is not listed" >&2; exit 1; }
kill "$printer"
for _ in {1..100}; do
  printers=$(list)
  if ! grep -q ^Sample <<<"$printers"; then exit 0; fi
done
echo "the printer is listed after its end" >&2
exit 1
