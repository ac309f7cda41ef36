# The root folder that the program is started with, for a user who has no other application to keep one.
# Read by bash scripts: tarvel1-avvia, esempi/avvia.

# usage: percorso_impossibile PATH. Says what of the path the program cannot write, fails where there is
# nothing of the kind: its argument ends at a bar, its paths are separated by backslashes, its settings are
# lines of code page 1252.
percorso_impossibile() {
  case $1 in
    *'|'*) echo "una barra verticale" ;;
    *'\'*) echo "una barra rovesciata" ;;
    *'"'*) echo "delle virgolette" ;;
    *[[:cntrl:]]*) echo "un carattere di controllo" ;;
    *)
      if printf %s "$1" | iconv -f UTF-8 -t CP1252 >/dev/null 2>&1; then return 1; fi
      echo "un carattere che non è dell'Europa occidentale (pagina di codici 1252)"
      ;;
  esac
}

# The file from the input: whole or not at all, and never over another.
metti() {
  [ ! -e "$1" ] || return 0
  mkdir -p "${1%/*}" && cat >"$1.nuovo" && mv -nT "$1.nuovo" "$1"
}

# usage: prepara_radice ROOT DATA VIEWER. Adds what the root lacks of what the program looks for; what is
# there is the user's.
prepara_radice() {
  mkdir -p "$1" || return
  # One start at a time, of two at once; a file system without locks has to do without.
  { flock 9 2>/dev/null; completa_radice "$@" 9<&-; } 9<"$1"
}

completa_radice() {
  local radice=$1 dati=$2 visore=$3 file lavoro sua detta prima
  mkdir -p "$radice"/{Lavori,progra,driver,custom,impostazioni} || return
  for file in "$dati"/{custom,impostazioni}/*; do
    metti "$radice${file#"$dati"}" <"$file" || return
  done
  # In quotes, or the folder would end at a comma.
  sua=$(printf '"%s"' "$radice/Lavori" | iconv -f UTF-8 -t CP1252)
  # A home that was renamed: the setting, as it is written here, names the same folder of one that is gone.
  if [ -e "$radice/impostazioni/dirlav" ]; then
    detta=$(head -n 1 "$radice/impostazioni/dirlav" | tr -d '\r' | iconv -f CP1252 -t UTF-8)
    prima=${detta#\"} prima=${prima%\"}
    case $detta in
      '"/'*/.local/share/tarvel1/Lavori'"')
        [ -e "$prima" ] || [ "${radice%/.local/share/tarvel1}" = "$radice" ] || rm "$radice/impostazioni/dirlav" ;;
    esac
  fi
  printf '%s\r\n' "$sua" | metti "$radice/impostazioni/dirlav" || return
  # The job's folder, where the jobs are kept here.
  if [ "$(head -n 1 "$radice/impostazioni/dirlav" | tr -d '\r')" = "$sua" ]; then
    lavoro=$(head -n 1 "$radice/impostazioni/lavoro" | iconv -f CP1252 -t UTF-8 | tr -d '\r')
    lavoro=${lavoro#"${lavoro%%[! ]*}"}
    lavoro=${lavoro%"${lavoro##*[! ]}"}
    case $lavoro in
      '' | */* | *'\'* | .*) ;;
      *) mkdir -p "$radice/Lavori/$lavoro" || return ;;
    esac
  fi
  # A link that leads nowhere is that of a package since removed.
  if [ -x "$visore" ] && [ ! -e "$radice/progra/ostrel.exe" ]; then
    ln -sfn "$visore" "$radice/progra/ostrel.exe" || return
  fi
}
