#!/usr/bin/env bash
# usage: prova_installata.sh BUILD VERSION. What is installed runs without a display, and the desktop
# understands its entries.
set -euo pipefail
dove=$(mktemp -d)
trap 'rm -rf "$dove"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
cmake --install "$1" --prefix "$dove" >/dev/null

for programma in tarvel1-headless tarvel1 ostrel; do
  [ -e "$1/bin/$programma" ] || continue # left out of the build
  detto=$("$dove/bin/$programma" --version)
  [ "$detto" = "$programma $2" ] || { echo "$programma --version: $detto"; exit 1; }
done
cd "$dove/share"
for file in doc/tarvel1/guida{,-esempio}.md doc/tarvel1/immagini/{finestra.png,punti.svg} icons/hicolor/scalable/apps/{tarvel1,ostrel}.svg mime/packages/ostrel.xml; do
  [ -s "$file" ] || { echo "manca $file"; exit 1; }
done
# What checks them may be missing outside ./check.
! command -v xmllint >/dev/null || xmllint --noout icons/hicolor/scalable/apps/*.svg mime/packages/*.xml
for voce in applications/*.desktop; do
  [ -e "$voce" ] || continue
  ! command -v desktop-file-validate >/dev/null || desktop-file-validate "$voce"
  tipo=$(sed -n 's/^MimeType=\(.*\);$/\1/p' "$voce")
  [ -z "$tipo" ] || grep -q "type=\"$tipo\"" mime/packages/ostrel.xml || { echo "$voce: $tipo"; exit 1; }
done
