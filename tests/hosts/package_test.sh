#!/usr/bin/env bash
# Tests the Debian packages of a build: checks them with lintian, uses them unpacked in a folder, installs and removes
# them.
# usage: tests/hosts/package_test.sh BUILD_FOLDER    (exits with 77 when the packaging tools are missing)
# shellcheck disable=SC2317  # functions are called by their names
set -euo pipefail

build=$(realpath "${1:?usage: tests/hosts/package_test.sh BUILD_FOLDER}")
if ! { command -v lintian && command -v dh; } >/dev/null; then
  echo "package_test: lintian or debhelper is not installed"
  if [[ ${CI:-} == true ]]; then exit 1; fi
  exit 77
fi

scratch=$(mktemp -d)
printer=
cleanup() {
  if [[ $printer ]]; then kill "$printer" && wait "$printer" || true; fi
  rm -rf "$scratch"
}
trap cleanup EXIT
chmod 711 "$scratch" # the account that the demo printer's jobs run as passes through
unset LD_LIBRARY_PATH
export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/home TMPDIR=$scratch LC_ALL=C.UTF-8
mkdir "$HOME"

failures=0
# expect WHAT PATTERN COMMAND...: expects the command to succeed with the pattern in its output.
expect() {
  local what=$1 pattern=$2 output
  shift 2
  if output=$("$@" 2>&1) && grep -qE -- "$pattern" <<<"$output"; then return; fi
  printf 'package_test: %s: no %s in\n%s\n' "$what" "$pattern" "$output"
  failures=$((failures + 1))
}

mkdir "$scratch/made"
source=$(dirname "$0")/../..
cp -R "$source"/{debian,docs,README.md} "$scratch/made"
make_packages() (cd "$scratch/made" && DEB_BUILD_OPTIONS=noautodbgsym debian/rules binary "PREBUILT=$build")
expect "the packages are made" 'building package' make_packages
fails() { ! "$@"; }
version=$("$build/bin/kesto-lp" --version)
version=${version##* }
expect "the changelog's version" "^## ${version//./\\.} " grep -m1 '^## ' "$source/CHANGELOG.md"
expect "the packages' version" "\\(${version//./\\.}\\)" head -1 "$source/debian/changelog"
expect "the description's version" "\"${version//./\\.}\"" grep -m1 '<release ' "$source/packaging/org.kesto.print.metainfo.xml"
packages=("$scratch"/kesto-job-handling_*.deb "$scratch"/kesto-job-handling-portal_*.deb)
expect "lintian finds nothing" '' lintian --fail-on error,warning "${packages[@]}"
expect "the stores' description is valid" '' appstreamcli validate --no-net \
  "$source/packaging/org.kesto.print.metainfo.xml"
exported() { nm -D --defined-only "$1" | c++filt | grep -vE ' (.* (for|to) )?kesto::'; }
expect "the library exports its own names only" '^$' fails exported "$build/lib/libkestopde.so"

root=$scratch/unpacked
for package in "${packages[@]}"; do dpkg-deb -x "$package" "$root"; done
bin=$root/usr/bin
bundle=$(find "$root/usr/lib" -name JobHandling.pde)
queue=(--ppd "$root/usr/share/kesto/kesto-vq250n.ppd" --device-uri lpd://x)
hold=(--dry-run "${queue[@]}" --hold only --pin-file -)
expect "help" '^Usage: kesto-lp ' "$bin/kesto-lp" --help
expect "the private library is the package's" "$root/usr/lib/.*/libkestopde" ldd "$bin/kesto-lp" "$bundle/JobHandling.so"
expect "a dry run" 'jobSuspend2Key=911ED802F46F9D5E4D26EA8C8BFE070B' "$bin/kesto-lp" "${hold[@]}" <<<2468
expect "a panel" '"queue" *: *"q"|retentionCheckBox' "$bin/kesto-panel" --queue q "${queue[@]}" \
  <<<$'{"do":"show"}\n{"do":"controls"}'
mkdir "$scratch/planted"
touch "$scratch/planted/libQt6Core.so.6" "$scratch/planted/libQt6Network.so.6"
in_planted() (cd "$scratch/planted" && "$@")
for each in "$bin" "$build/bin"; do
  expect "no library is taken from the current folder" 'jobSuspend=' in_planted "$each/kesto-lp" "${hold[@]}" <<<2468
done
mv "$bundle" "$bundle.away"
expect "the bundle is the package's" 'cannot find JobHandling.pde' fails "$bin/kesto-lp" "${hold[@]}" <<<2468
mv "$bundle.away" "$bundle"

# The files for the portal's front end and D-Bus lead to the service.
share=$root/usr/share
name=$(sed -n 's/^DBusName=//p' "$share/xdg-desktop-portal/portals/00-kesto.portal")
expect "the bus knows the portal's name" "^Name=$name$" cat "$share/dbus-1/services/$name.service"
for file in "$share/dbus-1/services/$name.service" "$share/systemd/user/kesto-portal.service"; do
  expect "$file names the program" '' test -x "$root$(sed -nE 's/^Exec(Start)?=//p' "$file")"
done
expect "the dialog is beside the service" '' test -x "$bin/kesto-print"

# example_of PAGE BLOCK: prints a block of commands from a manual page, counted from 1, adapted to the place of the
# installation.
example_of() {
  zcat "$root/usr/share/man/man1/$1.1.gz" | awk -v block="$2" '
    /^\.SH/ { inside = /EXAMPLES/ }
    /^\.fi/ { shown = 0 }
    inside && shown { gsub(/\\e/, "\\"); if (/\|$/) printf "%s", $0; else print }
    /^\.nf/ { if (inside && ++count == block) shown = 1 }' | sed "s| /usr/| $root/usr/|"
}
# run_example PAGE BLOCK: runs its lines one by one; there must be at least one. A line that comes too early for the
# printer is tried again.
run_example() {
  local line ran=1
  while IFS= read -r line; do
    for _ in {1..50}; do
      if in_examples "$line"; then ran=0; continue 2; fi
      sleep 0.2
    done
    return 1
  done < <(example_of "$@")
  return "$ran"
}
in_examples() (cd "$scratch/examples" && PATH=$bin:$PATH && eval "$1" </dev/null)
# The demo printer finds its programs and its queue's PPD beside it.
mkdir -m 711 "$scratch/examples"
cp "$(dirname "$0")/../../demo/quarterly-report.pdf" "$scratch/examples/report.pdf"
# "exec" keeps one process, so that the number that is noted is the printer's own.
(cd "$scratch/examples" && PATH=$bin:$PATH && eval "exec $(example_of kesto-demo-printer 1)" </dev/null) \
  >"$scratch/examples/places" 2>&1 &
printer=$!
until grep -qs ^output "$scratch/examples/places"; do kill -0 "$printer" || break; sleep 0.1; done
expect "the examples of kesto-demo-printer(1)" 'request id is Office_MFP-1' run_example kesto-demo-printer 2
expect "the released job" '' cmp "$scratch/examples/report.pdf" "$scratch/examples/demo/output/job-1-1"
export CUPS_SERVER=$scratch/examples/demo/sockets/server
expect "an example of kesto-lp(1)" 'request id is Office_MFP-2' run_example kesto-lp 2
for block in {3..6}; do expect "example $block of kesto-lp(1)" '' run_example kesto-lp "$block"; done
QT_QPA_PLATFORM=offscreen expect "an example of kesto-print(1)" '' run_example kesto-print 3
expect "the picture that it saves" '' test -s "$scratch/examples/summary.png"
for block in 1 2; do expect "example $block of kesto-panel(1)" '^\{"(settings|controls)"' run_example kesto-panel "$block"; done

# complete_word WORD...: prints what the completion offers for the last word.
complete_word() (
  PATH=$scratch/hostile:$bin:$PATH
  # shellcheck disable=SC1091
  source "$root/usr/share/bash-completion/completions/kesto-lp"
  compopt() { echo "file names"; }
  COMP_WORDS=(kesto-lp "$@")
  COMP_CWORD=$#
  COMPREPLY=()
  _kesto_lp
  (IFS=' ' && echo "${COMPREPLY[*]-}")
)
expect "completion of queues" '^Office_MFP$' complete_word -d Off
expect "completion of choices" '^only after sample$' complete_word --hold ''
expect "completion of lists" '^pin,folder pin,folder-pin$' complete_word --remember pin,fol
expect "completion of options" '^--pin --pin-file$' complete_word --pi
expect "no option is half a word" '^--ask-folder-pin --ask-password --ask-pin$' complete_word --ask
expect "nor is the program's name" '^$' complete_word -l
expect "completion of the help" '^--help$' complete_word --he
expect "completion of files" '^file names' complete_word rep

# The names of queues are data. Neither the completion nor the words that it offers run any part of a name.
# shellcheck disable=SC2016
queues=('$(touch${IFS}ran)' 'a b' 'q"uote' "it's" '`touch ran`' 'x;touch ran' '*' '~' 'b\c' 'Zürich')
mkdir "$scratch/hostile"
{ printf '#!/bin/sh\ncat <<"END"\n'; printf '%s\tidle\tsocket://x\n' "${queues[@]}"; echo END; } >"$scratch/hostile/kesto-lp"
chmod +x "$scratch/hostile/kesto-lp"
offered_and_typed() (
  cd "$scratch/hostile"
  typed=()
  eval "typed=($(complete_word -d ''))"
  printf '%s\n' "${typed[@]}"
  ls
)
expect "names of queues come over whole" "^$(printf '%s\n' "${queues[@]}" kesto-lp | sha256sum)" \
  eval 'offered_and_typed | sha256sum'
expect "a name that is begun" '^a\\ b$' complete_word -d a
expect "a name begun in double quotes" '^q"uote$|^a b$' complete_word -d '"a'
expect "a name begun in single quotes" '^\$\(touch\$\{IFS\}ran\)$' complete_word -d "'\$(t"
# shellcheck disable=SC2016
expect "no name that double quotes would run" '^$' complete_word -d '"$(t'

installed=$scratch/installed
mkdir -p "$installed"/var/lib/dpkg/{info,updates}
touch "$installed"/var/lib/dpkg/{status,available}
dpkg_there() {
  dpkg --root="$installed" --log=/dev/null --force-not-root --force-bad-path --force-depends "$@"
}
expect "installing" '' dpkg_there --install "${packages[@]}"
expect "an installed program" '^Usage: ' "$installed/usr/bin/kesto-lp" --help
expect "removing" '' dpkg_there --purge kesto-job-handling-portal kesto-job-handling
expect "nothing is left" '^$' find "$installed" -mindepth 1 -not -path "$installed/var*"

exit $((failures > 0))
