#!/usr/bin/env bash
# usage: prova_installata.sh BUILD VERSION. What is installed runs without a display, and the desktop
# understands its entries.
set -euo pipefail
dove=$(mktemp -d)
trap 'rm -rf "$dove"' EXIT
docs=$(cd "$(dirname "$0")/../../docs" && pwd)
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
cmake --install "$1" --prefix "$dove" >/dev/null
parole() { tr -d '":' | tr -s ' \n' '\n' | tr '[:lower:]' '[:upper:]'; }

for programma in tarvel1-headless tarvel1-lotto tarvel1-avvia tarvel1 ostrel; do
  [ -e "$dove/bin/$programma" ] || continue # left out of the build
  detto=$("$dove/bin/$programma" --version)
  [ "$detto" = "$programma $2" ] || { echo "$programma --version: $detto"; exit 1; }
  grep -q '^.SH "STATO D.USCITA"$' "$dove/share/man/man1/$programma.1" || { echo "pagina di $programma"; exit 1; }
  # The page has every word of the help, in order.
  perse=$(diff <("$dove/bin/$programma" --aiuto | sed 's/^uso://' | parole) \
    <(sed 's/^\.[A-Za-z]* *//; s/\\&//g; s/\\e/\\/g; s/\\-/-/g' "$dove/share/man/man1/$programma.1" | parole) | grep '^<' || true)
  [ -z "$perse" ] || { echo "pagina di $programma:" $perse; exit 1; }
done

cd "$dove/share"
for file in doc/tarvel1/guida{,-esempio}.md doc/tarvel1/immagini/{finestra.png,punti.svg} icons/hicolor/scalable/apps/{tarvel1,ostrel}.svg mime/packages/ostrel.xml; do
  [ -s "$file" ] || { echo "manca $file"; exit 1; }
done
if command -v cmark-gfm >/dev/null; then
  [ -s doc/tarvel1/guida-esempio.html ] || { echo "manca la guida per il browser"; exit 1; }
  "$docs/html" doc/tarvel1 # written again over what is there
fi
# Every link of what is read there leads somewhere.
(
  cd doc/tarvel1
  for pagina in *.md *.html; do
    [ -e "$pagina" ] || continue
    rimandi=$(grep -oP '(?:\]\(|(?:href|src)=")\K(?!http)[^)"]+' "$pagina" || true)
    [ -n "$rimandi" ] || continue
    while IFS='#' read -r file ancora; do
      file=${file:-$pagina}
      [ -e "$file" ] || { echo "$pagina: $file non c'è"; exit 1; }
      [ -z "$ancora" ] || [ "${file%.html}" = "$file" ] || grep -q "id=\"$ancora\"" "$file" ||
        { echo "$pagina: $file non ha #$ancora"; exit 1; }
    done <<<"$rimandi"
  done
)
# What checks them may be missing outside ./check.
! command -v xmllint >/dev/null || xmllint --noout icons/hicolor/scalable/apps/*.svg mime/packages/*.xml
for voce in applications/*.desktop; do
  [ -e "$voce" ] || continue
  ! command -v desktop-file-validate >/dev/null || desktop-file-validate "$voce"
  tipo=$(sed -n 's/^MimeType=\(.*\);$/\1/p' "$voce")
  [ -z "$tipo" ] || grep -q "type=\"$tipo\"" mime/packages/ostrel.xml || { echo "$voce: $tipo"; exit 1; }
done
