// The command lines of the programs that have options: one table each, from which the line is read and the
// help is made.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarvel {

// All texts are in UTF-8.

struct OpzioneComando {
  std::string nome;    // "--sezio"
  std::string valore;  // as the help calls the value; "" where the option has none
  std::string aiuto;   // the option's line in the help; "" where the help leaves it out
  /// Takes the value and returns ""; or returns which value the option wants, when it is not this one.
  std::function<std::string(const std::string&)> prendi;
};

/// The `prendi` of an option without a value: it sets `segno` to `come`.
inline auto Imposta(bool& segno, bool come = true) {
  return [&segno, come](const std::string&) {
    segno = come;
    return std::string();
  };
}

/// A program's table. --aiuto, --help, -h and --version are every program's, and stand in no table. The help
/// shows all rows; the reader takes the first of a name, so that others, and rows without a name, only
/// explain.
struct Comando {
  std::string nome, versione;
  std::string prima, dopo;  // the help's lines around those of the options
  std::vector<OpzioneComando> opzioni;
};

/// What a program says when its command line is all it deals with.
struct Congedo {
  std::string testo;
  int stato;  // of the exit: 0 for the help and the version, 2 for a mistake
};

struct ComandoLetto {
  std::vector<std::string> argomenti;  // without the options
  std::vector<std::string> dette;      // the options met, in the line's order
  std::optional<Congedo> congedo;
};

/// Reads `--option value`, `--option=value` and arguments in any order; after `--` there are arguments only,
/// and `-` is one.
ComandoLetto LeggiComando(const Comando& comando, std::span<const std::string> argomenti);

/// Of a mistake in the command line.
Congedo Sbagliato(const std::string& programma, const std::string& errore);

/// Says it, a mistake on the standard error. Returns the exit status: 1 when the help cannot be written.
int Congeda(const Congedo& congedo);

}  // namespace tarvel
