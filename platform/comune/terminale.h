// What a filter asks of its host: whether somebody is watching, where its rows go, how it ends.
#pragma once

#include <string>
#include <string_view>

namespace tarvel {

/// Rows go to a file or a program while somebody watches the messages: a progress line disturbs nobody.
bool SoltantoErroriSulTerminale();

/// The standard output goes into this very file: its path in UTF-8, or "-" for the standard input.
bool UscitaNelFile(const std::string& percorso);

/// From now on writing into a pipe that nobody reads any more fails, rather than ends the program.
void NonFinireColTubo();

/// Writes a last message on the standard error and ends the program. A signal's handler may call it.
[[noreturn]] void FinisciSubito(std::string_view messaggio, int stato);

}  // namespace tarvel
