// The host's reasons in the user's words, for every system.
#include "platform/ospite.h"

namespace tarvel {

Testo InParole(const std::error_code& motivo) {
  static constexpr struct {
    std::errc quale;
    const char* parole;
  } kMotivi[] = {
      {std::errc::no_space_on_device, "disco pieno"},
      {std::errc::permission_denied, "permesso negato"},
      {std::errc::operation_not_permitted, "permesso negato"},
      {std::errc::read_only_file_system, "disco in sola lettura"},
      {std::errc::no_such_file_or_directory, "file o cartella inesistente"},
      {std::errc::not_a_directory, "file o cartella inesistente"},
      {std::errc::is_a_directory, "è una cartella"},
      {std::errc::no_such_device, "non è un file"},
      {std::errc::file_exists, "il nome è già preso"},
      {std::errc::filename_too_long, "il nome è troppo lungo"},
      {std::errc::file_too_large, "file troppo grande"},
      {std::errc::resource_unavailable_try_again, "in uso da un altro programma"},
      {std::errc::io_error, "guasto del disco"},
  };
  for (const auto& m : kMotivi)
    if (motivo == m.quale) return DaUtf8(m.parole);
  return {};
}

Testo MotivoOspite() {
  const std::error_code motivo = OspiteDeiFile().Motivo();
  const Testo parole = InParole(motivo);
  return parole.empty() ? "errore " + std::to_string(motivo.value()) + " del sistema" : parole;
}

}  // namespace tarvel
