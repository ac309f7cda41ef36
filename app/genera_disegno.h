// The drawing of the current section is generated, saved and shown, and the user told of it.
#pragma once

#include <functional>

namespace tarvel {

/// What the user is told of the drawing file: all, nothing, or that it could not be written.
enum class ModoAvviso { Tutti, Nessuno, Errori };

/// Draws the current section and writes the file DirLavori + NomeFileDisegno. A section that is not
/// calculated has its outline rebuilt from ParametriSezione first. A file that cannot be written does not
/// stop the caller.
void GeneraDisegno(ModoAvviso avvisi);

/// Generates the drawing without a word and shows it in the viewer.
void MostraAnteprima();

/// Runs `disegna`, then shows the warnings that it left in Disegno, also when a fatal error ended it.
void ConAvvisi(const std::function<void()>& disegna);

}  // namespace tarvel
