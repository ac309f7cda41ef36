#!/usr/bin/env bash
# usage: prova_installata.sh BUILD VERSION. What is installed runs without a display, and the desktop
# understands its entries; a user's first start finds a root folder.
set -euo pipefail
dove=$(mktemp -d)
trap 'rm -rf "$dove"' EXIT
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

# The user's own root folder: the first start lays it out; a later one adds what is missing, where something
# was left half done or taken away, and leaves what the user has.
if [ -e "$dove/bin/tarvel1-avvia" ]; then
  unset XDG_DATA_HOME
  for n in 1 2 3 4 5 6 7 8; do # first starts at once
    HOME="$dove/insieme$((n / 4))" "$dove/bin/tarvel1-avvia" --cartella >/dev/null &
    avviati+=($!)
  done
  for avviato in "${avviati[@]}"; do wait "$avviato"; done
  export HOME="$dove/CITTÀ €, casa"
  radice=$("$dove/bin/tarvel1-avvia" --cartella)
  sed -i '1s/.*/123\r/' "$radice/custom/CapSezDe.txt"
  printf ' PR0042 \r\n' >"$radice/impostazioni/lavoro"
  rm -r "$radice"/{Lavori,impostazioni/dirlav}
  echo meta >"$radice/impostazioni/dirlav.nuovo"
  ln -sfn "$dove/tolto/ostrel" "$radice/progra/ostrel.exe"
  [ "$("$dove/bin/tarvel1-avvia" --cartella)" = "$radice" ]
  [ "$(head -n 1 "$radice/custom/CapSezDe.txt")" = $'123\r' ] || { echo "riscritto quello dell'utente"; exit 1; }
  [ "$radice/progra/ostrel.exe" -ef "$dove/bin/ostrel" ] || { echo "ostrel.exe non è il visualizzatore"; exit 1; }
  [ -d "$radice/driver" ] || { echo "manca driver"; exit 1; }
  esito=0
  "$dove/bin/tarvel1-avvia" --boh 2>/dev/null || esito=$?
  [ $esito = 2 ] || { echo "--boh: $esito"; exit 1; }
  lavori=$(cd "$radice" && find Lavori impostazioni | sort | tr '\n' ' ')
  [ "$lavori" = "Lavori Lavori/PR0042 impostazioni impostazioni/dirlav impostazioni/lavoro " ] ||
    { echo "cartelle: $lavori"; exit 1; }
  "$dove/bin/tarvel1-headless" --script "$(dirname "$0")/../../esempi/sessione.txt" "|diroot=$radice|" >/dev/null
  [ -s "$radice/Lavori/PR0042/sezio_ut" ] || { echo "non vi si lavora"; exit 1; }
  # It follows a home that is renamed, not the user to another's jobs or to where they are away for now.
  mv "$HOME" "$dove/altra CITTÀ €"
  HOME="$dove/altra CITTÀ €"
  radice=$HOME/.local/share/tarvel1
  altrui=$dove/altrui/.local/share/tarvel1/Lavori
  mkdir -p "$altrui"
  for detta in "$radice/Lavori" "$altrui" /media/chiave/tarvel1/Lavori; do
    [ "$detta" = "$radice/Lavori" ] || printf '"%s"\r\n' "$detta" >"$radice/impostazioni/dirlav"
    "$dove/bin/tarvel1-avvia" --cartella >/dev/null
    [ "$(iconv -f CP1252 -t UTF-8 "$radice/impostazioni/dirlav")" = "\"$detta\""$'\r' ] || { echo "dirlav: non $detta"; exit 1; }
  done
  # Where the user keeps data, and what the program is started with; a job is a name, not a path.
  printf '#!/bin/sh\nprintf %%s "$*"\n' >"$dove/chiamato"
  install "$dove/chiamato" "$dove/bin/tarvel1"
  for dati in "$dove/miei dati" relativa; do
    [ "$dati" = relativa ] && radice=$HOME/.local/share/tarvel1 || radice=$dati/tarvel1
    mkdir -p "$radice/impostazioni"
    echo ../fuori >"$radice/impostazioni/lavoro"
    detto=$(XDG_DATA_HOME="$dati" "$dove/bin/tarvel1-avvia")
    [ "$detto" = "|diroot=$radice|" ] || { echo "avviato con $detto"; exit 1; }
    [ ! -e "$radice/fuori" ] || { echo "una cartella fuori dei lavori"; exit 1; }
  done
  for casa in '' relativa "$dove/a|b" "$dove/日本"; do
    if HOME=$casa "$dove/bin/tarvel1-avvia" >/dev/null 2>"$dove/detto"; then echo "accettata: $casa"; exit 1; fi
    grep -q '^tarvel1-avvia: \(La cartella personale non è nota\|Il programma non può usare questa\)' "$dove/detto" ||
      { cat "$dove/detto"; exit 1; }
  done
fi
cd "$dove/share"
for file in doc/tarvel1/guida{,-esempio}.md doc/tarvel1/immagini/{finestra.png,punti.svg} icons/hicolor/scalable/apps/{tarvel1,ostrel}.svg mime/packages/ostrel.xml; do
  [ -s "$file" ] || { echo "manca $file"; exit 1; }
done
! command -v cmark-gfm >/dev/null || [ -s doc/tarvel1/guida-esempio.html ] || { echo "manca la guida per il browser"; exit 1; }
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
